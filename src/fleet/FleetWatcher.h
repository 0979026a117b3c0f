#pragma once

#include <memory>
#include <string>

#include "Namespace.h"
#include "fleet/FleetClock.h"
#include "fleet/FleetEvents.h"
#include "fleet/FleetNetwork.h"
#include "fleet/FleetPolicy.h"
#include "fleet/FleetRoster.h"
#include "fleet/FleetSchedule.h"
#include "fleet/FleetStates.h"
#include "fleet/FleetTarget.h"
#include "fleet/VisitQueue.h"
#include "fleet/VisitsUnderWay.h"

namespace AdvancedControl {

/// Visits the projectors of a fleet. It has no threads and no sockets: its owner calls `Tick`,
/// waits for network events until the time that `Tick` returns, and passes the events on. Use from
/// one thread at a time; `Fleet` adds the locking.  A projector that is due waits in a queue for
/// its visit. The results of visits go to the states.
class FleetWatcher final : private VisitsUnderWay::Owner {
 public:
  using Peer = FleetNetwork::Peer;

  /// `network`, `clock` and `states` outlive it.
  FleetWatcher(const FleetPolicy& policy, FleetNetwork& network, const FleetClock& clock,
               FleetStates& states);

  /// Adds a projector, or replaces the one with this identity.
  void Set(FleetTarget target);
  void Remove(const std::string& id);
  void SetAsking(bool asks);
  void SetInterval(std::chrono::milliseconds interval);

  /// Ends the visit under way at the address, and begins none there until `Release` has been called
  /// as often as `Hold`.
  void Hold(const VisitQueue::Address& address);
  void Release(const VisitQueue::Address& address) { queue_.Release(address); }

  // These do nothing for a projector that is not in the fleet.

  /// Ends the visit under way at the projector's address, even if it is another projector's, and
  /// begins none there until `Resume` has been called as often as `Pause`.
  void Pause(const std::string& id);
  void Resume(const std::string& id);
  void AskSoon(const std::string& id);

  const FleetTally& Tally() const { return tally_; }

  /// Does what is due, and returns the time of the next call; network events may require an earlier
  /// one.
  SessionTime Tick();
  /// Takes the events of the network.
  FleetNetwork::Listener& Events() { return visits_; }

 private:
  void Finished(Peer peer, const Visit& visit) override;
  void FoundInUse(Peer peer) override;
  void Noticed(const FleetNetwork::Notice& notice) override;

  void Begin(Peer peer);
  void Abandon(Peer peer);
  void AskPeerSoon(Peer peer);
  void StartTimer(Peer peer);

  FleetPolicy policy_;
  const FleetClock& clock_;
  FleetStates& states_;
  bool asks_ = true;
  FleetRoster roster_;
  FleetSchedule schedule_;
  VisitQueue queue_;
  VisitsUnderWay visits_;
  FleetTally tally_;
};

}  // namespace AdvancedControl
