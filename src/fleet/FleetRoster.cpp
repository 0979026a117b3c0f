#include "fleet/FleetRoster.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "fleet/MakeVisit.h"

namespace AdvancedControl {

FleetRoster::Peer FleetRoster::Add(FleetTarget target) {
  Peer peer = 0;
  if (free_.empty()) {
    peer = static_cast<Peer>(watched_.size());
    watched_.emplace_back();
  } else {
    peer = free_.back();
    free_.pop_back();
  }
  peers_.emplace(target.id, peer);
  auto address = PlaceOf(target);
  watched_[peer] = std::make_unique<WatchedProjector>(
      WatchedProjector{.target = std::move(target), .address = std::move(address)});
  AddHost(peer);
  return peer;
}

void FleetRoster::Replace(Peer peer, FleetTarget target) {
  RemoveHost(peer);
  At(peer).address = PlaceOf(target);
  At(peer).target = std::move(target);
  AddHost(peer);
}

void FleetRoster::Remove(Peer peer) {
  RemoveHost(peer);
  peers_.erase(At(peer).target.id);
  watched_[peer].reset();
  free_.push_back(peer);
}

std::optional<FleetRoster::Peer> FleetRoster::Find(const std::string& id) const {
  const auto found = peers_.find(id);
  return found == peers_.end() ? std::nullopt : std::optional(found->second);
}

std::vector<FleetRoster::Peer> FleetRoster::AtHost(const std::string& host) const {
  std::vector<Peer> peers;
  const auto [first, last] = hosts_.equal_range(host);
  for (auto at = first; at != last; ++at) peers.push_back(at->second);
  return peers;
}

std::vector<FleetRoster::Peer> FleetRoster::All() const {
  std::vector<Peer> peers;
  peers.reserve(peers_.size());
  for (const auto& [id, peer] : peers_) peers.push_back(peer);
  return peers;
}

void FleetRoster::AddHost(Peer peer) {
  const WatchedProjector& watched = At(peer);
  if (std::holds_alternative<PjLinkAddress>(watched.target.address)) {
    hosts_.emplace(watched.address.first, peer);
  }
}

void FleetRoster::RemoveHost(Peer peer) {
  const auto [first, last] = hosts_.equal_range(At(peer).address.first);
  const auto own = std::find_if(first, last, [&](const auto& host) { return host.second == peer; });
  if (own != last) hosts_.erase(own);
}

}  // namespace AdvancedControl
