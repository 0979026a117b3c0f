#include "fleet/JobLoop.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

SessionTime Now() { return std::chrono::steady_clock::now(); }

}  // namespace

void JobLoop::Run(Peer count, const std::function<void(Peer)>& work) {
  works_.resize(count);
  for (Peer peer = 0; peer < count; ++peer) {
    works_[peer].fiber = std::make_unique<Fiber>([&work, peer] { work(peer); });
  }
  const auto isFinished = [](const Work& one) { return one.fiber->IsFinished(); };
  while (true) {
    const SessionTime next = Continue();
    if (std::ranges::all_of(works_, isFinished)) return;
    network_.Wait(next);
    network_.Pass(*this);
  }
}

SessionTime JobLoop::Continue() {
  SessionTime next = SessionTime::max();
  for (Work& work : works_) {
    if (work.fiber->IsFinished()) continue;
    if (work.goesOn || work.until <= Now()) {
      work.goesOn = false;
      work.fiber->Resume();
      if (work.fiber->IsFinished()) continue;
    }
    next = std::min(next, work.until);
  }
  return next;
}

void JobLoop::Wait(Peer peer, SessionTime until) {
  works_[peer].until = until;
  works_[peer].fiber->Suspend();
}

void JobLoop::Notify(Peer peer, const auto& what) {
  if (Receiver* const receiver = works_[peer].receiver) what(*receiver);
  works_[peer].goesOn = true;
}

void JobLoop::Connected(Peer peer) {
  Notify(peer, [](Receiver& receiver) { receiver.Connected(); });
}
void JobLoop::NotConnected(Peer peer, ConnectionState problem) {
  Notify(peer, [&](Receiver& receiver) { receiver.NotConnected(problem, Now()); });
}
void JobLoop::Received(Peer peer, std::string_view bytes) {
  Notify(peer, [&](Receiver& receiver) { receiver.Received(bytes, Now()); });
}
void JobLoop::Closed(Peer peer) {
  Notify(peer, [](Receiver& receiver) { receiver.Closed(Now()); });
}

}  // namespace AdvancedControl
