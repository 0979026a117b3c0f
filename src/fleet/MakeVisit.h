#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/FleetNetwork.h"
#include "fleet/Visit.h"

namespace AdvancedControl {

/// The visit that fits the projector's address; null for a wrong address. `sequence` differs from
/// visit to visit; see `WireSession`.
std::unique_ptr<Visit> MakeVisit(const FleetTarget& target, const FleetPolicy& policy,
                                 const LiveState& state, const ProjectorMemory& memory,
                                 std::uint16_t sequence);

/// Begins to connect to the projector.
void ConnectTo(const FleetTarget& target, FleetNetwork& network, FleetNetwork::Peer peer);

/// Where a projector is: host and port, or a serial port's path and 0.
std::pair<std::string, std::uint16_t> HostOf(const FleetTarget& target);
/// The same, but equal for all ways to write an IP address, or a name in small or capital letters.
PROJECTOR_FLEET_EXPORT std::pair<std::string, std::uint16_t> PlaceOf(const FleetTarget& target);

}  // namespace AdvancedControl
