#include "app/desktop/work/PowerUndo.h"

#include <utility>

namespace {

bool IsPowered(PowerState power) {
  return power == PowerState::On || power == PowerState::WarmingUp;
}

}  // namespace

// If an attempt may have switched it already, a state that the attempt leads to says nothing about
// the time before.
void PowerUndo::Keep(const FleetWork& work, const std::string& id,
                     const std::optional<LiveState>& state) {
  const auto* power = std::get_if<SwitchPower>(&work);
  if (power == nullptr || !state || !state->power) return;
  if (!reached_.contains(id) || IsPowered(*state->power) != power->on)
    before_.try_emplace(id, *state->power);
}

// One that did not answer may have carried out the command all the same.
void PowerUndo::TakeOutcome(const std::string& id, WorkOutcome outcome) {
  if (outcome != WorkOutcome::Refused && outcome != WorkOutcome::Stopped) reached_.insert(id);
}

void PowerUndo::AddTo(WorkPlan& undo, const std::vector<WorkPart>& parts) const {
  WorkPart off{.work = SwitchPower{.on = false}, .targets = {}};
  WorkPart on{.work = SwitchPower{.on = true}, .targets = {}};
  for (const WorkPart& part : parts) {
    const auto* power = std::get_if<SwitchPower>(&part.work);
    if (power == nullptr) continue;
    for (const FleetTarget& target : part.targets) {
      const auto before = before_.find(target.id);
      if (!reached_.contains(target.id)) continue;
      if (before == before_.end()) {
        undo.unknown.push_back(target.id);
      } else if (const bool wasOn = IsPowered(before->second); wasOn != power->on) {
        (wasOn ? on : off).targets.push_back(target);
      }
    }
  }
  for (WorkPart* part : {&off, &on}) {
    if (!part->targets.empty()) undo.parts.push_back(std::move(*part));
  }
}
