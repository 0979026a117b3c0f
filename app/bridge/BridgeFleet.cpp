#include "app/bridge/BridgeFleet.h"

#include <utility>

BridgeFleet::BridgeFleet(const ShareProfiles& projectors, const FleetPolicy& policy,
                         Changed changed)
    : projectors_(projectors),
      changed_(std::move(changed)),
      seen_(projectors.Count()),
      fleet_(policy, [this] {
        QMetaObject::invokeMethod(
            &context_, [this] { TakeChanges(); }, Qt::QueuedConnection);
      }) {
  fleet_.SetAsking(false);
  for (const FleetProfile& profile : projectors_.All()) fleet_.Set(TargetOf(profile));
}

void BridgeFleet::SetAsking(bool asks) {
  if (std::exchange(asks_, asks) != asks) fleet_.SetAsking(asks);
}

void BridgeFleet::Forget() {
  for (const FleetProfile& profile : projectors_.All()) {
    fleet_.Remove(FleetIdOf(profile));
    fleet_.Set(TargetOf(profile));
  }
}

LiveState BridgeFleet::State(std::size_t projector) const {
  return fleet_.State(FleetIdOf(projectors_.Profile(projector))).value_or(LiveState());
}

std::vector<MeasuredProjector> BridgeFleet::States() const {
  std::vector<MeasuredProjector> states(projectors_.Count());
  for (auto& [identity, state] : fleet_.States()) {
    if (const auto index = projectors_.FindIdentity(identity)) {
      states[*index] = {&projectors_.Profile(*index), std::move(state)};
    }
  }
  return states;
}

void BridgeFleet::TakeChanges() {
  const FleetChanges taken = fleet_.TakeChanges();
  for (std::size_t i = 0; taken.areMissing && i < projectors_.Count(); ++i) changed_(i);
  for (const FleetChange& change : taken.changes) {
    if (const auto index = projectors_.FindIdentity(change.id)) changed_(*index);
  }
}

void BridgeFleet::Observe() {
  const auto states = fleet_.States();
  for (const auto& [identity, state] : states) {
    const auto index = projectors_.FindIdentity(identity);
    if (!index) continue;
    Seen& seen = seen_[*index];
    const bool hasAnswered = state.answered && state.answered != seen.answered;
    if (hasAnswered) answers_.Add(state.answerTime);
    if (hasAnswered || state.connection != seen.connection) changed_(*index);
    seen = {state.answered, state.connection};
  }
}
