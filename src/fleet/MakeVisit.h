#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

#include "Namespace.h"
#include "fleet/Visit.h"

namespace AdvancedControl {

/// The visit that fits the projector's address; null for one that is not on a network.
std::unique_ptr<Visit> MakeVisit(const FleetTarget& target, const FleetPolicy& policy,
                                 const LiveState& state, const ProjectorMemory& memory);

/// Where a projector on a network is.
std::pair<std::string, std::uint16_t> HostOf(const FleetTarget& target);

}  // namespace AdvancedControl
