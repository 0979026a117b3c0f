#include "fleet/StateChange.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

template <typename Value>
FieldValue Number(const std::optional<Value>& value) {
  return value ? FieldValue{static_cast<int>(*value)} : FieldValue{};
}

FieldValue Named(const std::optional<PlayingSource>& source) {
  return source ? FieldValue{source->number, source->name} : FieldValue{};
}

FieldValue Problem(const LiveState& state, std::size_t part) {
  return state.problems ? FieldValue{static_cast<int>(state.problems->at(part))} : FieldValue{};
}

FieldValue Hours(const LiveState& state, std::size_t lamp) {
  return lamp < state.lamps.size() ? FieldValue{state.lamps[lamp].hours} : FieldValue{};
}

}  // namespace

std::vector<StateChange> ChangesBetween(const LiveState& before, const LiveState& now,
                                        WallTime time) {
  std::vector<StateChange> changes;
  const auto compare = [&](StateField field, FieldValue old, FieldValue fresh,
                           std::size_t index = 0) {
    if (old == fresh) return;
    changes.push_back(
        {field, static_cast<std::uint8_t>(index), std::move(old), std::move(fresh), time});
  };
  const auto compareNumber = [&](StateField field, auto member) {
    compare(field, Number(before.*member), Number(now.*member));
  };
  compare(StateField::Reachability, {static_cast<int>(before.reachability)},
          {static_cast<int>(now.reachability)});
  compareNumber(StateField::Power, &LiveState::power);
  compare(StateField::Source, Named(before.source), Named(now.source));
  for (std::size_t part = 0; part < PjLink::kParts; ++part) {
    compare(StateField::Problem, Problem(before, part), Problem(now, part), part);
  }
  compareNumber(StateField::Blank, &LiveState::blank);
  compareNumber(StateField::Mute, &LiveState::mute);
  compareNumber(StateField::Freeze, &LiveState::freeze);
  for (std::size_t lamp = 0; lamp < std::max(before.lamps.size(), now.lamps.size()); ++lamp) {
    compare(StateField::LampHours, Hours(before, lamp), Hours(now, lamp), lamp);
  }
  compareNumber(StateField::FilterHours, &LiveState::filterHours);
  compareNumber(StateField::Drift, &LiveState::drift);
  return changes;
}

bool IsNews(const StateChange& change) {
  return change.field != StateField::LampHours && change.field != StateField::FilterHours;
}

}  // namespace AdvancedControl
