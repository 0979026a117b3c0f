#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QTimer>

#include "app/simulator/ControlServer.h"
#include "app/simulator/fleet/FleetProjectors.h"
#include "app/simulator/fleet/FleetServer.h"

/// How profiles lead to the projectors of a fleet.
enum class FleetLink { PjLink, Network, Mixed };

struct FleetOptions {
  FleetProjectors::Options projectors{};
  FleetServer::Options server{};
  std::vector<FaultShare> faults{};
  int changes = 0;  ///< Changes of state in a second that happen by themselves.
  FleetLink link = FleetLink::PjLink;
  QString countsFile{};  ///< Where to write how often each projector was asked; empty for nowhere.
};

/// A fleet as the program serves it: disturbed by faults, by itself and by the lines of the control
/// port.
class FleetService final : public ControlledProjectors {
 public:
  FleetService(std::vector<FleetProfile> profiles, const FleetOptions& options);

  /// What went wrong, one line; empty when the fleet is served.
  QString Start();

  /// Where the projectors are, a line for each protocol.
  std::string Addresses() const;
  /// A profile file for them, made of the one that they came from.
  QByteArray Profiles(const QByteArray& original) const;
  /// Writes how often each was asked, if there is a file for it. One line that says what went
  /// wrong, or nothing.
  QString WriteCounts() const;

  std::size_t Count() const override { return projectors_.Count(); }
  void SetFault(std::size_t projector, const ServiceFault& fault) override;
  /// "address 127.64.0.9", "address none", "power 0", "errors 020000", "count"; for all of them
  /// "count", and "counts", which writes the file.
  std::optional<QString> Obey(std::optional<std::size_t> projector, const QString& line) override;

 private:
  QString Count(std::optional<std::size_t> projector) const;
  QString ObeyOne(std::size_t projector, const QString& verb, const QString& what);

  const FleetOptions options_;
  FleetProjectors projectors_;
  FleetServer server_;
  QTimer changing_;
  std::uint64_t changed_ = 0;
};
