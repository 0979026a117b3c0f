#include "fleet/MakeVisit.h"

#include <variant>

#include "fleet/PjLinkVisit.h"
#include "fleet/WireVisit.h"

namespace AdvancedControl {

std::unique_ptr<Visit> MakeVisit(const FleetTarget& target, const FleetPolicy& policy,
                                 const LiveState& state, const ProjectorMemory& memory) {
  if (const auto* const pjLink = std::get_if<PjLinkAddress>(&target.address)) {
    return std::make_unique<PjLinkVisit>(*pjLink, policy, state, memory, target.model);
  }
  if (std::holds_alternative<TcpAddress>(target.address)) {
    return std::make_unique<WireVisit>(policy, state, memory, target.model);
  }
  return nullptr;
}

std::pair<std::string, std::uint16_t> HostOf(const FleetTarget& target) {
  if (const auto* const pjLink = std::get_if<PjLinkAddress>(&target.address)) {
    return {pjLink->host, pjLink->port};
  }
  if (const auto* const tcp = std::get_if<TcpAddress>(&target.address)) {
    return {tcp->host, tcp->port};
  }
  return {};
}

}  // namespace AdvancedControl
