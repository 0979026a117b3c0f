#include "fleet/MakeVisit.h"

#include <variant>

#include <QString>

#include "fleet/PjLinkVisit.h"
#include "fleet/SocketAddress.h"
#include "fleet/WireVisit.h"

namespace AdvancedControl {

std::unique_ptr<Visit> MakeVisit(const FleetTarget& target, const FleetPolicy& policy,
                                 const LiveState& state, const ProjectorMemory& memory,
                                 std::uint16_t sequence) {
  if (const auto* const pjLink = std::get_if<PjLinkAddress>(&target.address)) {
    return std::make_unique<PjLinkVisit>(*pjLink, policy, state, memory, target.model);
  }
  if (std::holds_alternative<AddressError>(target.address)) return nullptr;
  const bool isSerial = std::holds_alternative<SerialAddress>(target.address);
  return std::make_unique<WireVisit>(
      isSerial ? WireSession::Medium::Noisy : WireSession::Medium::Reliable, policy, state, memory,
      target.model, sequence);
}

void ConnectTo(const FleetTarget& target, FleetNetwork& network, FleetNetwork::Peer peer) {
  const auto [host, port] = HostOf(target);
  if (const auto* const serial = std::get_if<SerialAddress>(&target.address)) {
    network.OpenLine(peer, serial->device, serial->baud);
  } else {
    network.Connect(peer, host, port);
  }
}

std::pair<std::string, std::uint16_t> HostOf(const FleetTarget& target) {
  if (const auto* const pjLink = std::get_if<PjLinkAddress>(&target.address)) {
    return {pjLink->host, pjLink->port};
  }
  if (const auto* const tcp = std::get_if<TcpAddress>(&target.address)) {
    return {tcp->host, tcp->port};
  }
  if (const auto* const serial = std::get_if<SerialAddress>(&target.address)) {
    return {serial->device, 0};
  }
  return {};
}

std::pair<std::string, std::uint16_t> PlaceOf(const FleetTarget& target) {
  auto [host, port] = HostOf(target);
  if (std::holds_alternative<SerialAddress>(target.address)) return {std::move(host), port};
  if (const auto numeric = ParseSocketAddress(host, port)) {
    host = TextOf(*numeric);
  } else {
    host = QString::fromStdString(host).toLower().toStdString();
  }
  return {std::move(host), port};
}

}  // namespace AdvancedControl
