#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/desktop/work/WorkPlan.h"
#include "fleet/LiveState.h"

/// Remembers what switches back the projectors that the attempts of a run have switched, or may
/// have switched.
class PowerUndo {
 public:
  /// Takes the power before an attempt from the state that is known then.
  void Keep(const FleetWork& work, const std::string& id, const std::optional<LiveState>& state);
  void TakeOutcome(const std::string& id, WorkOutcome outcome);
  /// `parts` are the work that is undone.
  void AddTo(WorkPlan& undo, const std::vector<WorkPart>& parts) const;

 private:
  std::map<std::string, PowerState> before_;
  std::set<std::string> reached_;  ///< Those that may have carried out what was sent.
};
