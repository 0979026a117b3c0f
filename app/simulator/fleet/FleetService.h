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

/// The kind of connection in the profiles of a fleet.
enum class FleetLink { PjLink, Network, Mixed };

struct FleetOptions {
  FleetProjectors::Options projectors{};
  FleetServer::Options server{};
  std::vector<FaultShare> faults{};
  int changes = 0;  ///< How many random changes of state happen in a second.
  FleetLink link = FleetLink::PjLink;
  QString countsFile{};  ///< File for the projectors' `RequestCounts`; empty for none.
};

/// Serves a fleet, and disturbs it: with faults, random changes, and the commands of the control
/// port.
class FleetService final : public ControlledProjectors {
 public:
  FleetService(std::vector<FleetProfile> profiles, const FleetOptions& options);

  /// Starts to serve. Returns one line about what went wrong, or nothing.
  QString Start();

  /// The projectors' addresses and ports, in one line for each protocol.
  std::string Addresses() const;
  /// A profile file for the projectors, made from the one that describes their models.
  QByteArray Profiles(const QByteArray& original) const;
  /// Writes the projectors' `RequestCounts` to the file for them, if there is one. Returns one line
  /// about what went wrong, or nothing.
  QString WriteCounts() const;

  std::size_t Count() const override { return projectors_.Count(); }
  void SetFault(std::size_t projector, const ServiceFault& fault) override;
  /// For one projector "address 127.64.0.9", "address none", "power 0", "errors 020000" and
  /// "count"; for all together "count", and "counts", which writes the file.
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
