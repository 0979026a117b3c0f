#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <QHostAddress>
#include <QJsonObject>

#include "app/simulator/ControlServer.h"
#include "app/simulator/Faults.h"
#include "fleet/ProfileFile.h"
#include "simulator/FaultChannel.h"
#include "simulator/PjLinkServer.h"
#include "simulator/WireServer.h"

struct ServiceOptions {
  QHostAddress address{QHostAddress::LocalHost};
  std::uint16_t firstPort = 0;  ///< 0 chooses free ports.
  std::string password;         ///< For PJLink; empty for none.
  bool serial = false;          ///< Whether to serve on pseudo terminals too.
  std::vector<FaultShare> faults;
  std::uint64_t seed = 1;  ///< Determines which projectors have the fault of a share.
};

/// A served projector with the servers of all its connections.
struct Service {
  std::string name;
  std::shared_ptr<FaultChannel> channel;
  std::unique_ptr<WireServer> wire;
  std::unique_ptr<PjLinkServer> pjLink;
  std::uint16_t wirePort = 0;
  int pjLinkPort = 0;
  std::string terminal{};  ///< Path; empty for none.
};

/// Serves the projectors of a profile file while the event loop runs.
class ServedProjectors final : public ControlledProjectors {
 public:
  /// Starts serving `profiles`. On failure, `ErrorText` says what is wrong.
  ServedProjectors(const std::vector<FleetProfile>& profiles, const ServiceOptions& options);

  const QString& ErrorText() const { return error_; }
  std::size_t Count() const override { return services_.size(); }

  /// One line for each connection of each projector: name, colon, address.
  std::string Addresses() const;

  /// A profile file for the served projectors, based on the file `original` that they were read
  /// from.
  QByteArray Profiles(const QByteArray& original) const;

  void SetFault(std::size_t projector, const ServiceFault& fault) override;

 private:
  bool Serve(const FleetProfile& profile);
  QJsonObject NetworkConnection(int port, const std::string& password) const;

  const ServiceOptions options_;
  std::vector<Service> services_;
  QString error_;
};
