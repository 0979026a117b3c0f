#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Namespace.h"
#include "fleet/StateChange.h"

namespace AdvancedControl {

/// A change of a projector's state.
struct FleetChange {
  std::string id;
  StateChange change;
};

/// Changes, the oldest first.
struct FleetChanges {
  std::vector<FleetChange> changes{};
  bool areMissing = false;  ///< Too many had accumulated, and the oldest were dropped.
};

/// What a fleet has done so far. The numbers only grow.
struct FleetTally {
  std::uint64_t begun = 0;       ///< Visits.
  std::uint64_t answered = 0;    ///< Those during which at least one answer came.
  std::uint64_t unanswered = 0;  ///< Those during which none came.
  std::uint64_t abandoned = 0;   ///< Those that were ended for another reason.
};

}  // namespace AdvancedControl
