#include "app/bridge/BridgeFleet.h"

#include <utility>

#include "app/bridge/Topics.h"

namespace {

std::optional<std::size_t> Found(const auto& map, const std::string& key) {
  const auto found = map.find(key);
  return found == map.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

BridgeFleet::BridgeFleet(std::vector<FleetProfile> profiles, const Share& share,
                         const FleetPolicy& policy, Changed changed)
    : changed_(std::move(changed)), fleet_(policy, [this] {
        QMetaObject::invokeMethod(
            &context_, [this] { TakeChanges(); }, Qt::QueuedConnection);
      }) {
  fleet_.SetAsking(false);
  for (FleetProfile& profile : profiles) {
    if (profile.link == ProjectorLink::Simulated || !share.Has(profile)) continue;
    const std::size_t index = profiles_.size();
    const std::string identity = FleetIdOf(profile);
    ids_.push_back(TopicLevel(identity));
    const auto [other, isNew] = ofId_.emplace(ids_.back().toStdString(), index);
    if (!isNew) {
      error_ = QStringLiteral("%1 and %2 would have the same topic")
                   .arg(QString::fromStdString(FleetIdOf(profiles_[other->second])),
                        QString::fromStdString(identity));
    }
    ofIdentity_.emplace(identity, index);
    ofName_.emplace(profile.name, index);
    fleet_.Set(TargetOf(profile));
    profiles_.push_back(std::move(profile));
  }
  seen_.resize(Count());
}

std::optional<std::size_t> BridgeFleet::Find(const QByteArray& id) const {
  return Found(ofId_, id.toStdString());
}

std::optional<std::size_t> BridgeFleet::FindName(std::string_view name) const {
  return Found(ofName_, std::string(name));
}

std::optional<std::size_t> BridgeFleet::IndexOf(const std::string& identity) const {
  return Found(ofIdentity_, identity);
}

void BridgeFleet::SetAsking(bool asks) {
  if (std::exchange(asks_, asks) != asks) fleet_.SetAsking(asks);
}

LiveState BridgeFleet::State(std::size_t projector) const {
  return fleet_.State(FleetIdOf(profiles_[projector])).value_or(LiveState());
}

std::vector<MeasuredProjector> BridgeFleet::States() const {
  std::vector<MeasuredProjector> states(Count());
  for (auto& [identity, state] : fleet_.States()) {
    if (const auto index = IndexOf(identity)) {
      states[*index] = {&profiles_[*index], std::move(state)};
    }
  }
  return states;
}

void BridgeFleet::TakeChanges() {
  const FleetChanges taken = fleet_.TakeChanges();
  for (std::size_t i = 0; taken.areMissing && i < Count(); ++i) changed_(i);
  for (const FleetChange& change : taken.changes) {
    if (const auto index = IndexOf(change.id)) changed_(*index);
  }
}

void BridgeFleet::Observe() {
  const auto states = fleet_.States();
  for (const auto& [identity, state] : states) {
    const auto index = IndexOf(identity);
    if (!index) continue;
    Seen& seen = seen_[*index];
    const bool hasAnswered = state.answered && state.answered != seen.answered;
    if (hasAnswered) answers_.Add(state.answerTime);
    if (hasAnswered || state.connection != seen.connection) changed_(*index);
    seen = {state.answered, state.connection};
  }
}
