#pragma once

#include <random>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"
#include "fleet/FleetPolicy.h"

namespace AdvancedControl {

/// Determines when a projector is visited next.
class AskSchedule {
 public:
  using Random = std::minstd_rand;

  /// A visit begins.
  void Begin(SessionTime now, const FleetPolicy& policy, Random& random);
  /// The result of the visit. An abandoned visit has none.
  void Answered(const FleetPolicy& policy);
  void Unanswered(const FleetPolicy& policy);
  /// The interval has changed.
  void Adapt(const FleetPolicy& policy);
  /// Brings the next visit forward, as far as the policy allows.
  void Hasten(SessionTime now, const FleetPolicy& policy);

  /// The time of the next visit; the epoch before the first visit.
  SessionTime Next() const { return next_; }

 private:
  SessionTime::duration PauseOf(const FleetPolicy& policy) const;
  void SetNext(SessionTime::duration pause, const FleetPolicy& policy);

  SessionTime begun_{};
  SessionTime next_{};
  double chance_ = 0;  ///< From 0 up to 1, for this pause.
  int failures_ = 0;   ///< In a row.
};

}  // namespace AdvancedControl
