#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "Namespace.h"
#include "fleet/FleetClock.h"
#include "fleet/FleetNetwork.h"
#include "fleet/FleetTarget.h"
#include "fleet/PeerTimers.h"
#include "fleet/Visit.h"

namespace AdvancedControl {

/// Drives visits over a network until they have finished, one visit for each peer.
class VisitsUnderWay final : public FleetNetwork::Listener {
 public:
  using Peer = FleetNetwork::Peer;

  /// Receives the results of visits; may be called from inside `Begin` and `Continue`.
  class Owner {
   public:
    virtual ~Owner() = default;
    /// The visit is over, and its connection closed.
    virtual void Finished(Peer peer, const Visit& visit) = 0;
    /// The visit was abandoned, because another program uses the serial port.
    virtual void FoundInUse(Peer peer) = 0;
    virtual void Noticed(const FleetNetwork::Notice& notice) = 0;
  };

  /// All of them outlive it.
  VisitsUnderWay(FleetNetwork& network, const FleetClock& clock, Owner& owner)
      : network_(network), clock_(clock), owner_(owner) {}

  /// `target` outlives the visit.
  void Begin(Peer peer, std::unique_ptr<Visit> visit, const FleetTarget& target);
  /// Ends a visit without a result; false if none is under way.
  bool Abandon(Peer peer);
  bool Has(Peer peer) const { return visits_.contains(peer); }
  std::size_t Count() const { return visits_.size(); }

  /// Continues visits that have waited long enough.
  void Continue();
  /// When to call `Continue` next; the end of time if no visit waits.
  SessionTime NextStep() const { return timers_.First(); }

  void Connected(Peer peer) override;
  void NotConnected(Peer peer, ConnectionState problem) override;
  void InUse(Peer peer) override;
  void Received(Peer peer, std::string_view bytes) override;
  void Closed(Peer peer) override;
  void Noticed(const FleetNetwork::Notice& notice) override { owner_.Noticed(notice); }

 private:
  struct UnderWay {
    std::unique_ptr<Visit> visit;
    const FleetTarget* target;
  };

  void Drive(Peer peer);
  void Finish(Peer peer);

  FleetNetwork& network_;
  const FleetClock& clock_;
  Owner& owner_;
  std::unordered_map<Peer, UnderWay> visits_;
  PeerTimers timers_;
};

}  // namespace AdvancedControl
