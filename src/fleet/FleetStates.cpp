#include "fleet/FleetStates.h"

#include <algorithm>
#include <iterator>

#include "fleet/StatusItems.h"

namespace AdvancedControl {

namespace {

/// Keeps what the status page has less exactly: all problems behind one error, and all lamps.
void KeepExact(LiveState& state, const LiveState& before) {
  if (state.error == before.error) state.problems = before.problems;
  if (before.lamps.empty()) return;
  const int hours = state.lamps.front().hours;
  state.lamps = before.lamps;
  state.lamps.front().hours = hours;
}

}  // namespace

void FleetStates::Add(const std::string& id, std::shared_ptr<const ModelData> model) {
  const std::lock_guard lock(mutex_);
  known_[id].model = std::move(model);
}

void FleetStates::Remove(const std::string& id) {
  const std::lock_guard lock(mutex_);
  known_.erase(id);
}

void FleetStates::Change(const std::string& id, const std::function<void(LiveState&)>& change) {
  const std::lock_guard lock(mutex_);
  const auto known = known_.find(id);
  if (known == known_.end()) return;
  LiveState state = known->second.state;
  change(state);
  Apply(id, known->second, std::move(state));
}

void FleetStates::Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
                        std::optional<PowerState> power) {
  if (!reply.answered) return;
  const std::lock_guard lock(mutex_);
  const auto known = known_.find(id);
  if (known == known_.end()) return;
  const LiveState& before = known->second.state;
  LiveState state = before;
  state.reachability = Reachability::Answers;
  state.connection = ConnectionState::Connected;
  state.answered = clock_.Wall();
  if (const auto item = StatusItemOf(command)) {
    const Answer answer = AnswerTo(ReadingOf(*item), reply);
    if (answer.accepted) TakeStatus(state, *item, answer.value, known->second.model.get());
    KeepExact(state, before);
    if (*item == StatusItem::Power && power) TakePower(state, *power);
    // A visit may know a name that the model does not have.
    const bool isSame =
        state.source && before.source && state.source->number == before.source->number;
    if (isSame && state.source->name.empty()) state.source->name = before.source->name;
    if (state.power == PowerState::Standby) state.ForgetPicture();  // whatever it answers
  }
  Apply(id, known->second, std::move(state));
}

std::optional<LiveState> FleetStates::State(const std::string& id) const {
  const std::lock_guard lock(mutex_);
  const auto known = known_.find(id);
  return known == known_.end() ? std::nullopt : std::optional(known->second.state);
}

std::vector<std::pair<std::string, LiveState>> FleetStates::States() const {
  const std::lock_guard lock(mutex_);
  std::vector<std::pair<std::string, LiveState>> states;
  states.reserve(known_.size());
  for (const auto& [id, known] : known_) states.emplace_back(id, known.state);
  return states;
}

std::vector<StateChange> FleetStates::History(const std::string& id) const {
  const std::lock_guard lock(mutex_);
  const auto known = known_.find(id);
  if (known == known_.end()) return {};
  return known->second.history;
}

FleetChanges FleetStates::TakeChanges() {
  const std::lock_guard lock(mutex_);
  hasNotified_ = false;
  const auto end =
      changes_.begin() + static_cast<std::ptrdiff_t>(std::min(changes_.size(), kMostTaken));
  FleetChanges taken{.areMissing = std::exchange(areMissing_, false)};
  taken.changes.assign(std::move_iterator(changes_.begin()), std::move_iterator(end));
  changes_.erase(changes_.begin(), end);
  return taken;
}

bool FleetStates::MustNotify() {
  const std::lock_guard lock(mutex_);
  return !changes_.empty() && !std::exchange(hasNotified_, true);
}

void FleetStates::Apply(const std::string& id, Known& known, LiveState state) {
  const WallTime wall = clock_.Wall();
  if (state.reachability != known.state.reachability) {
    state.since = wall;
    state.steadySince = clock_.Now();
  }
  for (StateChange& change : ChangesBetween(known.state, state, wall)) {
    if (IsNews(change)) {
      known.history.push_back(change);
      if (known.history.size() > history_) known.history.erase(known.history.begin());
    }
    changes_.push_back({id, std::move(change)});
  }
  known.state = std::move(state);
  while (changes_.size() > kMostKept) {
    changes_.pop_front();
    areMissing_ = true;
  }
}

}  // namespace AdvancedControl
