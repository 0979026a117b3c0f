#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "Namespace.h"
#include "fleet/FleetTarget.h"
#include "fleet/Visit.h"
#include "fleet/VisitQueue.h"

namespace AdvancedControl {

struct WatchedProjector {
  FleetTarget target;
  /// The address to connect to. All ways to write an IP address give the same one.
  VisitQueue::Address address;
  ProjectorMemory memory{};
  int pauses = 0;
  bool asksAgain = false;  ///< Another visit follows soon: this one may have asked too early.
};

/// The projectors of a fleet. Each has a number, its peer, as long as it stays.
class FleetRoster {
 public:
  using Peer = FleetNetwork::Peer;

  Peer Add(FleetTarget target);
  /// `target` has the same identity.
  void Replace(Peer peer, FleetTarget target);
  void Remove(Peer peer);

  std::optional<Peer> Find(const std::string& id) const;
  WatchedProjector& At(Peer peer) { return *watched_[peer]; }
  /// The PJLink projectors at a numeric address, as `TextOf` writes it.
  std::vector<Peer> AtHost(const std::string& host) const;
  std::vector<Peer> All() const;

 private:
  void AddHost(Peer peer);
  void RemoveHost(Peer peer);

  std::deque<std::unique_ptr<WatchedProjector>> watched_;  ///< By peer; null where one was removed.
  std::vector<Peer> free_;
  std::unordered_map<std::string, Peer> peers_;
  std::unordered_multimap<std::string, Peer> hosts_;  ///< Of PJLink projectors.
};

}  // namespace AdvancedControl
