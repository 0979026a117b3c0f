#include "fleet/PeerTimers.h"

namespace AdvancedControl {

void PeerTimers::Set(Peer peer, SessionTime time) {
  Clear(peer);
  if (peer >= times_.size()) times_.resize(peer + 1, SessionTime::max());
  times_[peer] = time;
  order_.emplace(time, peer);
}

void PeerTimers::Clear(Peer peer) {
  if (peer >= times_.size()) return;
  const SessionTime time = std::exchange(times_[peer], SessionTime::max());
  if (time != SessionTime::max()) order_.erase({time, peer});
}

SessionTime PeerTimers::TimeOf(Peer peer) const {
  return peer < times_.size() ? times_[peer] : SessionTime::max();
}

SessionTime PeerTimers::First() const {
  return order_.empty() ? SessionTime::max() : order_.begin()->first;
}

std::optional<PeerTimers::Peer> PeerTimers::TakeDue(SessionTime now) {
  if (order_.empty() || First() > now) return std::nullopt;
  const Peer peer = order_.begin()->second;
  Clear(peer);
  return peer;
}

}  // namespace AdvancedControl
