#include "fleet/FleetWatcher.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "device/protocol/PjLinkLine.h"
#include "fleet/MakeVisit.h"
#include "fleet/PjLinkStatus.h"

namespace AdvancedControl {

namespace {

// Done by one `Tick`, so that it does not take long.
constexpr int kMostBegun = 32;
constexpr int kMostQueued = 1000;

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
                           const FleetClock& clock, FleetStates& states)
    : policy_(policy),
      clock_(clock),
      states_(states),
      schedule_(policy_, clock),
      visits_(network, clock, *this) {}

void FleetWatcher::Set(FleetTarget target) {
  states_.Add(target.id, target.model);
  const auto known = roster_.Find(target.id);
  if (!known) {
    const Peer peer = roster_.Add(std::move(target));
    schedule_.Reset(peer);
    return StartTimer(peer);
  }
  WatchedProjector& watched = roster_.At(*known);
  const bool hasMoved = watched.target.address != target.address;
  if (hasMoved) {
    Abandon(*known);
    for (int i = 0; i < watched.pauses; ++i) queue_.Release(watched.address);
  }
  roster_.Replace(*known, std::move(target));
  if (!hasMoved) return;
  for (int i = 0; i < watched.pauses; ++i) Hold(roster_.At(*known).address);
  watched.memory = {};
  schedule_.Reset(*known);
  StartTimer(*known);
}

void FleetWatcher::Remove(const std::string& id) {
  states_.Remove(id);
  const auto peer = roster_.Find(id);
  if (!peer) return;
  Abandon(*peer);
  schedule_.Stop(*peer);
  const WatchedProjector& watched = roster_.At(*peer);
  for (int i = 0; i < watched.pauses; ++i) queue_.Release(watched.address);
  roster_.Remove(*peer);
}

void FleetWatcher::SetAsking(bool asks) {
  if (std::exchange(asks_, asks) == asks) return;
  for (const Peer peer : roster_.All()) {
    if (asks) {
      StartTimer(peer);
    } else {
      Abandon(peer);
      schedule_.Stop(peer);
    }
  }
}

void FleetWatcher::SetInterval(std::chrono::milliseconds interval) {
  policy_.interval = interval;
  for (const Peer peer : roster_.All()) {
    if (queue_.Has(peer)) continue;  // the end of its visit sets the next pause
    schedule_.Adapt(peer);
    StartTimer(peer);
  }
}

void FleetWatcher::Pause(const std::string& id) {
  const auto peer = roster_.Find(id);
  if (!peer) return;
  ++roster_.At(*peer).pauses;
  Hold(roster_.At(*peer).address);
}

void FleetWatcher::Resume(const std::string& id) {
  const auto peer = roster_.Find(id);
  if (!peer || roster_.At(*peer).pauses == 0) return;
  WatchedProjector& watched = roster_.At(*peer);
  queue_.Release(watched.address);
  if (--watched.pauses == 0) AskPeerSoon(*peer);
}

void FleetWatcher::AskSoon(const std::string& id) {
  if (const auto peer = roster_.Find(id)) AskPeerSoon(*peer);
}

SessionTime FleetWatcher::Tick() {
  visits_.Continue();
  for (int i = 0; i < kMostQueued; ++i) {
    const auto peer = schedule_.TakeDue();
    if (!peer) break;
    queue_.Add(*peer, roster_.At(*peer).address);
  }
  const auto mayBegin = [this] {
    return queue_.HasNext() && visits_.Count() < policy_.visitsAtOnce;
  };
  for (int i = 0; i < kMostBegun && mayBegin(); ++i) Begin(*queue_.Next());
  if (mayBegin()) return clock_.Now();
  return std::min(visits_.NextStep(), schedule_.NextDue());
}

void FleetWatcher::Finished(Peer peer, const Visit& visit) {
  WatchedProjector& watched = roster_.At(peer);
  queue_.Leave(peer);
  if (visit.HasAnswered()) {
    ++tally_.answered;
    schedule_.Answered(peer);
    watched.memory = visit.Memory();
  } else {
    ++tally_.unanswered;
    schedule_.Unanswered(peer);
    watched.memory = {};  // it may be a different projector when it is back
  }
  states_.Change(watched.target.id, [&](LiveState& state) {
    LiveState told = visit.State();
    // Visits do not report it.
    told.drift = state.drift;
    told.since = state.since;
    told.steadySince = state.steadySince;
    state = std::move(told);
    state.reachability = ReachabilityAfter(visit);
    state.connection = visit.HasAnswered() ? ConnectionState::Connected : visit.Connection();
    if (!visit.HasAnswered()) return state.ForgetMomentary();
    state.answered = clock_.Wall();
    state.answerTime = std::chrono::duration_cast<std::chrono::microseconds>(visit.AnswerTime());
  });
  StartTimer(peer);
}

void FleetWatcher::FoundInUse(Peer peer) {
  ++tally_.abandoned;
  queue_.Leave(peer);
  StartTimer(peer);
}

/// Takes over what the notice reports. If more may have changed, asks the projector.
void FleetWatcher::Noticed(const FleetNetwork::Notice& notice) {
  const PjLinkStatus::Question* const question = PjLinkStatus::FindQuestion(notice.command);
  for (const Peer peer : roster_.AtHost(notice.address)) {
    const WatchedProjector& watched = roster_.At(peer);
    // The visit under way may have asked too early.
    bool tellsAll =
        question != nullptr && question->mapping->value(notice.value) && !visits_.Has(peer);
    states_.Change(watched.target.id, [&](LiveState& state) {
      tellsAll = tellsAll && state.reachability == Reachability::Answers;
      if (!tellsAll) return;
      const bool wasOn = state.power == PowerState::On;
      PjLinkStatus::Take(state, *question, notice.value, watched.target.model.get(),
                         watched.memory.inputs);
      if (state.power == PowerState::Standby) state.ForgetPicture();  // whatever it tells
      tellsAll = wasOn || state.power != PowerState::On;
    });
    if (!tellsAll) AskPeerSoon(peer);
  }
}

void FleetWatcher::Begin(Peer peer) {
  WatchedProjector& watched = roster_.At(peer);
  const auto sequence = static_cast<std::uint16_t>(clock_.Now().time_since_epoch().count());
  const LiveState state = states_.State(watched.target.id).value_or(LiveState());
  auto visit = MakeVisit(watched.target, policy_, state, watched.memory, sequence);
  if (!visit) {
    queue_.Leave(peer);
    return states_.Change(watched.target.id, [](LiveState& wrong) {
      wrong.connection = ConnectionState::WrongParameters;
    });
  }
  ++tally_.begun;
  schedule_.Begin(peer);
  visits_.Begin(peer, std::move(visit), watched.target);
}

/// Ends the visit or the waiting for one.
void FleetWatcher::Abandon(Peer peer) {
  if (visits_.Abandon(peer)) ++tally_.abandoned;
  queue_.Leave(peer);
}

void FleetWatcher::Hold(const VisitQueue::Address& address) {
  const auto visited = queue_.Hold(address);
  if (!visited) return;
  Abandon(*visited);
  StartTimer(*visited);
}

void FleetWatcher::AskPeerSoon(Peer peer) {
  if (visits_.Has(peer)) {
    roster_.At(peer).asksAgain = true;
  } else if (!queue_.Has(peer)) {
    schedule_.Hasten(peer);
    StartTimer(peer);
  }
}

// Not during a visit: what is wanted soon is not lost when the visit is abandoned.
void FleetWatcher::StartTimer(Peer peer) {
  if (std::exchange(roster_.At(peer).asksAgain, false)) schedule_.Hasten(peer);
  if (asks_) schedule_.Start(peer);
}

}  // namespace AdvancedControl
