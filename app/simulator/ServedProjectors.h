#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <QHostAddress>
#include <QJsonObject>

#include "app/profiles/ProfileFile.h"
#include "app/simulator/ControlServer.h"
#include "app/simulator/Faults.h"
#include "simulator/FaultChannel.h"
#include "simulator/PjLinkServer.h"
#include "simulator/WireServer.h"

struct ServiceOptions {
  QHostAddress address{QHostAddress::LocalHost};
  std::uint16_t firstPort = 0;  ///< 0 takes free ports.
  std::string password;         ///< Of PJLink; empty for none.
  bool serial = false;          ///< On pseudo terminals too.
  std::vector<FaultShare> faults;
  std::uint64_t seed = 1;  ///< Of the shares.
};

/// A projector with everything that it can be reached through.
struct Service {
  std::string name;
  std::shared_ptr<FaultChannel> channel;
  std::unique_ptr<WireServer> wire;
  std::unique_ptr<PjLinkServer> pjLink;
  std::uint16_t wirePort = 0;
  int pjLinkPort = 0;
  std::string terminal{};  ///< Path; empty for none.
};

/// The projectors of a profile file, served while the event loop runs.
class ServedProjectors final : public ControlledProjectors {
 public:
  /// Serves `profiles`; `ErrorText` says what went wrong.
  ServedProjectors(const std::vector<ProjectorProfile>& profiles, const ServiceOptions& options);

  const QString& ErrorText() const { return error_; }
  std::size_t Count() const override { return services_.size(); }

  /// One line for each way to each projector: its name, a colon, an address.
  std::string Addresses() const;

  /// A profile file for these projectors, made of the one that they came from.
  QByteArray Profiles(const QByteArray& original) const;

  void SetFault(std::size_t projector, const ServiceFault& fault) override;

 private:
  bool Serve(const ProjectorProfile& profile);
  QJsonObject NetworkConnection(int port, const std::string& password) const;

  const ServiceOptions options_;
  std::vector<Service> services_;
  QString error_;
};
