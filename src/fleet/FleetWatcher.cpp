#include "fleet/FleetWatcher.h"

#include <algorithm>

#include "fleet/MakeVisit.h"

namespace AdvancedControl {

namespace {

/// Visits begun by one `Tick`, so that it does not take long.
constexpr int kMostBegun = 32;
constexpr std::size_t kMostChanges = 100'000;

Reachability ReachabilityAfter(const Visit& visit) {
  if (visit.HasAnswered()) return Reachability::Answers;
  switch (visit.Connection()) {
    case ConnectionState::PasswordRequired:
      return Reachability::WrongPassword;
    case ConnectionState::NotUnderstood:
    case ConnectionState::OtherVersion:
      return Reachability::NotUnderstood;
    default:
      return Reachability::Silent;
  }
}

}  // namespace

FleetWatcher::FleetWatcher(const FleetPolicy& policy, FleetNetwork& network,
                           const FleetClock& clock)
    : policy_(policy), network_(network), clock_(clock), random_(policy.seed) {}

void FleetWatcher::Set(FleetTarget target) {
  if (const auto found = peers_.find(target.id); found != peers_.end()) {
    Watched& watched = *watched_[found->second];
    const bool hasMoved = watched.target.address != target.address;
    if (hasMoved) Abandon(found->second);
    SetTarget(found->second, std::move(target));
    if (!hasMoved) return;
    watched.memory = {};
    watched.schedule = {};
    return Schedule(found->second);
  }
  Peer peer = 0;
  if (free_.empty()) {
    peer = static_cast<Peer>(watched_.size());
    watched_.emplace_back();
  } else {
    peer = free_.back();
    free_.pop_back();
  }
  peers_.emplace(target.id, peer);
  watched_[peer] = std::make_unique<Watched>();
  SetTarget(peer, std::move(target));
  Schedule(peer);
}

void FleetWatcher::Remove(const std::string& id) {
  const auto found = peers_.find(id);
  if (found == peers_.end()) return;
  const Peer peer = found->second;
  Abandon(peer);
  ClearTimer(peer);
  ForgetHost(peer);
  std::erase(line_, peer);
  watched_[peer].reset();
  free_.push_back(peer);
  peers_.erase(found);
}

void FleetWatcher::SetAsking(bool asks) {
  if (std::exchange(asks_, asks) == asks) return;
  for (const auto& [id, peer] : peers_) {
    if (!asks) Abandon(peer);
    Schedule(peer);
  }
}

void FleetWatcher::SetInterval(std::chrono::milliseconds interval) {
  policy_.interval = interval;
  for (const auto& [id, peer] : peers_) {
    if (watched_[peer]->visit) continue;  // its end sets the next pause
    watched_[peer]->schedule.Adapt(policy_);
    Schedule(peer);
  }
}

void FleetWatcher::Pause(const std::string& id) {
  Watched* const watched = Find(id);
  if (watched == nullptr) return;
  ++watched->pauses;
  Abandon(peers_.at(id));
  Schedule(peers_.at(id));
}

void FleetWatcher::Resume(const std::string& id) {
  Watched* const watched = Find(id);
  if (watched == nullptr || watched->pauses == 0 || --watched->pauses > 0) return;
  AskSoon(id);
}

void FleetWatcher::AskSoon(const std::string& id) {
  Watched* const watched = Find(id);
  if (watched == nullptr) return;
  if (watched->visit) {
    watched->asksAgain = true;
    return;
  }
  watched->schedule.Hasten(clock_.Now(), policy_);
  Schedule(peers_.at(id));
}

void FleetWatcher::Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
                         std::optional<PowerState> power) {
  Watched* const watched = Find(id);
  if (watched == nullptr || !reply.answered) return;
  LiveState state = watched->state;
  state.reachability = Reachability::Answers;
  state.connection = ConnectionState::Connected;
  state.answered = clock_.Wall();
  if (const auto item = StatusItemOf(command)) {
    const Answer answer = AnswerTo(ReadingOf(*item), reply);
    if (answer.accepted) TakeStatus(state, *item, answer.value, watched->target.model.get());
    if (*item == StatusItem::Power && power) TakePower(state, *power);
  }
  Apply(*watched, std::move(state));
}

void FleetWatcher::LearnDrift(const std::string& id, std::optional<int> drift) {
  Watched* const watched = Find(id);
  if (watched == nullptr) return;
  LiveState state = watched->state;
  state.drift = drift;
  Apply(*watched, std::move(state));
}

std::optional<LiveState> FleetWatcher::State(const std::string& id) const {
  const Watched* const watched = Find(id);
  return watched ? std::optional(watched->state) : std::nullopt;
}

std::vector<std::pair<std::string, LiveState>> FleetWatcher::States() const {
  std::vector<std::pair<std::string, LiveState>> states;
  states.reserve(peers_.size());
  for (const auto& [id, peer] : peers_) states.emplace_back(id, watched_[peer]->state);
  return states;
}

std::vector<StateChange> FleetWatcher::History(const std::string& id) const {
  const Watched* const watched = Find(id);
  return watched ? watched->history : std::vector<StateChange>();
}

FleetChanges FleetWatcher::TakeChanges() { return std::exchange(changes_, {}); }

SessionTime FleetWatcher::Tick() {
  const SessionTime now = clock_.Now();
  while (!timers_.empty() && timers_.begin()->first <= now) {
    const Peer peer = timers_.begin()->second;
    ClearTimer(peer);
    Fire(peer);
  }
  for (int i = 0; i < kMostBegun && !line_.empty() && visited_.size() < policy_.visitsAtOnce; ++i) {
    const Peer peer = line_.front();
    line_.pop_front();
    watched_[peer]->waits = false;
    if (MayAsk(*watched_[peer])) Begin(peer);
  }
  if (!line_.empty() && visited_.size() < policy_.visitsAtOnce) return now;
  return timers_.empty() ? SessionTime::max() : timers_.begin()->first;
}

void FleetWatcher::Connected(Peer peer) {
  watched_[peer]->visit->Connected(clock_.Now());
  Drive(peer);
}

void FleetWatcher::NotConnected(Peer peer, ConnectionState problem) {
  watched_[peer]->visit->NotConnected(problem, clock_.Now());
  Drive(peer);
}

/// Says nothing about the projector.
void FleetWatcher::InUse(Peer peer) {
  Abandon(peer);
  Schedule(peer);
}

void FleetWatcher::Received(Peer peer, std::string_view bytes) {
  watched_[peer]->visit->Received(bytes, clock_.Now());
  Drive(peer);
}

void FleetWatcher::Closed(Peer peer) {
  watched_[peer]->visit->Closed(clock_.Now());
  Drive(peer);
}

void FleetWatcher::Noticed(const std::string& address) {
  const auto [first, last] = hosts_.equal_range(address);
  for (auto at = first; at != last; ++at) AskSoon(watched_[at->second]->target.id);
}

void FleetWatcher::SetTarget(Peer peer, FleetTarget target) {
  ForgetHost(peer);
  if (const auto* const pjLink = std::get_if<PjLinkAddress>(&target.address)) {
    hosts_.emplace(pjLink->host, peer);
  }
  watched_[peer]->target = std::move(target);
}

void FleetWatcher::ForgetHost(Peer peer) {
  const auto [first, last] = hosts_.equal_range(HostOf(watched_[peer]->target).first);
  const auto own = std::find_if(first, last, [&](const auto& host) { return host.second == peer; });
  if (own != last) hosts_.erase(own);
}

FleetWatcher::Watched* FleetWatcher::Find(const std::string& id) {
  return const_cast<Watched*>(std::as_const(*this).Find(id));
}

const FleetWatcher::Watched* FleetWatcher::Find(const std::string& id) const {
  const auto found = peers_.find(id);
  return found == peers_.end() ? nullptr : watched_[found->second].get();
}

/// The timer of a projector has run out.
void FleetWatcher::Fire(Peer peer) {
  Watched& watched = *watched_[peer];
  if (watched.visit) return Drive(peer);
  if (!MayAsk(watched) || std::exchange(watched.waits, true)) return;
  line_.push_back(peer);
}

void FleetWatcher::Begin(Peer peer) {
  Watched& watched = *watched_[peer];
  const auto sequence = static_cast<std::uint16_t>(clock_.Now().time_since_epoch().count());
  watched.visit = MakeVisit(watched.target, policy_, watched.state, watched.memory, sequence);
  if (!watched.visit) {
    LiveState state = watched.state;
    state.connection = ConnectionState::WrongParameters;
    return Apply(watched, std::move(state));
  }
  if (!visited_.insert(HostOf(watched.target)).second) {
    watched.visit.reset();
    return SetTimer(peer, clock_.Now() + policy_.soonest);
  }
  ++tally_.begun;
  watched.schedule.Begin(clock_.Now(), policy_, random_);
  Drive(peer);
}

void FleetWatcher::Drive(Peer peer) {
  using Kind = SessionStep::Kind;
  Watched& watched = *watched_[peer];
  while (true) {
    const SessionStep step = watched.visit->Next(clock_.Now());
    switch (step.kind) {
      case Kind::Connect:
        ConnectTo(watched.target, network_, peer);
        break;
      case Kind::Send:
        network_.Send(peer, step.bytes);
        break;
      case Kind::Close:
        network_.Close(peer);
        break;
      case Kind::Wait:
        // A timer that runs out too early only asks again; most are never needed.
        if (!watched.timer || *watched.timer > step.until) SetTimer(peer, step.until);
        return;
      case Kind::Finished:
        return Finish(peer);
    }
  }
}

void FleetWatcher::Finish(Peer peer) {
  Watched& watched = *watched_[peer];
  network_.Close(peer);
  const auto visit = std::move(watched.visit);
  visited_.erase(HostOf(watched.target));
  LiveState state = visit->State();
  // Which no visit tells.
  state.drift = watched.state.drift;
  state.since = watched.state.since;
  state.reachability = ReachabilityAfter(*visit);
  state.connection = visit->Connection();
  if (visit->HasAnswered()) {
    ++tally_.answered;
    watched.schedule.Answered(policy_);
    watched.memory = visit->Memory();
    state.connection = ConnectionState::Connected;
    state.answered = clock_.Wall();
    state.answerTime = std::chrono::duration_cast<std::chrono::microseconds>(visit->AnswerTime());
  } else {
    ++tally_.unanswered;
    watched.schedule.Unanswered(policy_);
    watched.memory = {};  // it may be another one when it is back
    state.ForgetMomentary();
  }
  Apply(watched, std::move(state));
  if (std::exchange(watched.asksAgain, false)) watched.schedule.Hasten(clock_.Now(), policy_);
  Schedule(peer);
}

void FleetWatcher::Abandon(Peer peer) {
  Watched& watched = *watched_[peer];
  if (!watched.visit) return;
  network_.Close(peer);
  watched.visit.reset();
  visited_.erase(HostOf(watched.target));
  ++tally_.abandoned;
}

/// Sets the timer of a projector without a visit for the next one.
void FleetWatcher::Schedule(Peer peer) {
  ClearTimer(peer);
  Watched& watched = *watched_[peer];
  if (MayAsk(watched) && !watched.waits) SetTimer(peer, watched.schedule.Next());
}

void FleetWatcher::SetTimer(Peer peer, SessionTime time) {
  ClearTimer(peer);
  watched_[peer]->timer = time;
  timers_.emplace(time, peer);
}

void FleetWatcher::ClearTimer(Peer peer) {
  if (const auto time = std::exchange(watched_[peer]->timer, {})) timers_.erase({*time, peer});
}

void FleetWatcher::Apply(Watched& watched, LiveState state) {
  const WallTime wall = clock_.Wall();
  if (state.reachability != watched.state.reachability) state.since = wall;
  for (StateChange& change : ChangesBetween(watched.state, state, wall)) {
    if (IsNews(change)) {
      if (watched.history.size() >= policy_.history) watched.history.erase(watched.history.begin());
      watched.history.push_back(change);
    }
    changes_.changes.push_back({watched.target.id, std::move(change)});
  }
  watched.state = std::move(state);
  if (changes_.changes.size() <= kMostChanges) return;
  changes_.changes.erase(changes_.changes.begin(), changes_.changes.begin() + kMostChanges / 2);
  changes_.areMissing = true;
}

}  // namespace AdvancedControl
