#pragma once

#include <optional>
#include <vector>

#include "Namespace.h"
#include "fleet/AskSchedule.h"
#include "fleet/FleetClock.h"
#include "fleet/FleetPolicy.h"
#include "fleet/PeerTimers.h"

namespace AdvancedControl {

/// When each projector of a fleet is due for a visit. A projector's timer runs from `Start` until
/// it is due, or until `Stop`.
class FleetSchedule {
 public:
  using Peer = PeerTimers::Peer;

  /// Both outlive it.
  FleetSchedule(const FleetPolicy& policy, const FleetClock& clock)
      : policy_(policy), clock_(clock), random_(policy.seed) {}

  /// Makes the projector due at once, without starting its timer.
  void Reset(Peer peer);
  void Start(Peer peer) { timers_.Set(peer, plans_[peer].Next()); }
  void Stop(Peer peer) { timers_.Clear(peer); }

  /// Records the beginning of a visit.
  void Begin(Peer peer) { plans_[peer].Begin(clock_.Now(), policy_, random_); }
  /// Record the result of the visit. Neither is called for an abandoned visit.
  void Answered(Peer peer) { plans_[peer].Answered(policy_); }
  void Unanswered(Peer peer) { plans_[peer].Unanswered(policy_); }
  /// Adapts the next visit to an interval that has changed in the policy.
  void Adapt(Peer peer) { plans_[peer].Adapt(policy_); }
  /// Brings the next visit forward, as far as the policy allows.
  void Hasten(Peer peer) { plans_[peer].Hasten(clock_.Now(), policy_); }

  /// A projector that is due. Its timer does not run any more.
  std::optional<Peer> TakeDue() { return timers_.TakeDue(clock_.Now()); }
  /// When the next one is due; the end of time if no timer runs.
  SessionTime NextDue() const { return timers_.First(); }

 private:
  const FleetPolicy& policy_;
  const FleetClock& clock_;
  AskSchedule::Random random_;
  std::vector<AskSchedule> plans_;  ///< By peer.
  PeerTimers timers_;
};

}  // namespace AdvancedControl
