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
/// one thread at a time; `Fleet` adds the locking.
///
/// A projector that is due waits in a queue for a visit. What visits tell goes to the states.
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

  // Of a projector that is not in the fleet these do nothing.

  /// Ends a visit under way at the projector's address and begins none there, whichever entry it
  /// is of, until `Resume` was called as often.
  void Pause(const std::string& id);
  void Resume(const std::string& id);
  void AskSoon(const std::string& id);

  const FleetTally& Tally() const { return tally_; }

  /// Does what is due, and returns when something will be, unless the network tells of it before.
  SessionTime Tick();
  /// Takes the events of the network.
  FleetNetwork::Listener& Events() { return visits_; }

 private:
  void Finished(Peer peer, const Visit& visit) override;
  void FoundInUse(Peer peer) override;
  void Noticed(const FleetNetwork::Notice& notice) override;

  void Begin(Peer peer);
  void Abandon(Peer peer);
  void Hold(Peer peer);
  void AskPeerSoon(Peer peer);
  void StartTimer(Peer peer);

  const FleetPolicy policy_;
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
