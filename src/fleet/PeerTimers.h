#pragma once

#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"
#include "fleet/FleetNetwork.h"

namespace AdvancedControl {

/// A timer for each of many peers.
class PeerTimers {
 public:
  using Peer = FleetNetwork::Peer;

  /// Replaces the peer's timer.
  void Set(Peer peer, SessionTime time);
  void Clear(Peer peer);
  /// The peer's timer, or the end of time.
  SessionTime TimeOf(Peer peer) const;
  /// The first of all timers, or the end of time.
  SessionTime First() const;
  /// A peer whose timer has run out, and clears it.
  std::optional<Peer> TakeDue(SessionTime now);

 private:
  std::set<std::pair<SessionTime, Peer>> order_;
  std::vector<SessionTime> times_;  ///< By peer.
};

}  // namespace AdvancedControl
