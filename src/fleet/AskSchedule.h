#pragma once

#include <random>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"
#include "fleet/FleetPolicy.h"

namespace AdvancedControl {

/// When a projector may be asked next.
class AskSchedule {
 public:
  using Random = std::minstd_rand;

  /// A visit begins.
  void Begin(SessionTime now, const FleetPolicy& policy, Random& random);
  /// What came of it. An abandoned visit says nothing.
  void Answered(const FleetPolicy& policy);
  void Unanswered(const FleetPolicy& policy);
  /// The next visit is as early as it may be, as something has changed.
  void Hasten(SessionTime now, const FleetPolicy& policy);

  /// The epoch for one that was never asked: at once.
  SessionTime Next() const { return next_; }

 private:
  void SetNext(SessionTime::duration pause, const FleetPolicy& policy);

  SessionTime begun_{};
  SessionTime next_{};
  double chance_ = 0;  ///< From 0 up to 1, for this pause.
  int failures_ = 0;   ///< In a row.
};

}  // namespace AdvancedControl
