#include "fleet/JobLoop.h"

#include <thread>
#include <utility>

namespace AdvancedControl {

namespace {

/// The loop that runs on this thread, if any.
thread_local JobLoop* running = nullptr;

SessionTime Now() { return std::chrono::steady_clock::now(); }

}  // namespace

/// Tells the receivers of connections what happened, and continues the work that waits for it.
class JobLoop::Events final : public FleetNetwork::Listener {
 public:
  explicit Events(JobLoop& loop) : loop_(loop) {}

  void Connected(Peer peer) override {
    Deliver(peer, [](Receiver& receiver) { receiver.Connected(); });
  }
  void NotConnected(Peer peer, ConnectionState problem) override {
    Deliver(peer, [&](Receiver& receiver) { receiver.NotConnected(problem, Now()); });
  }
  void InUse(Peer peer) override { NotConnected(peer, ConnectionState::NotReachable); }
  void Received(Peer peer, std::string_view bytes) override {
    Deliver(peer, [&](Receiver& receiver) { receiver.Received(bytes, Now()); });
  }
  void Closed(Peer peer) override {
    Deliver(peer, [](Receiver& receiver) { receiver.Closed(Now()); });
  }
  void Noticed(const FleetNetwork::Notice&) override {}

 private:
  void Deliver(Peer peer, const auto& what) {
    const Connection connection = loop_.connections_[peer];
    if (connection.isAwaited) loop_.timers_.Set(connection.work, SessionTime::min());
    if (connection.receiver != nullptr) what(*connection.receiver);
  }

  JobLoop& loop_;
};

JobLoop::JobLoop() = default;
JobLoop::~JobLoop() = default;

void JobLoop::Run(std::size_t count, const std::function<void(std::size_t)>& work) {
  JobLoop* const outer = std::exchange(running, this);
  for (std::size_t i = 0; i < count; ++i) {
    works_.push_back(std::make_unique<Fiber>([&work, i] { work(i); }));
    timers_.Set(static_cast<Number>(i), SessionTime::min());
  }
  unfinished_ = count;
  Events events(*this);
  while (Continue()) {
    network_.Wait(timers_.First());
    network_.Pass(events);
  }
  works_.clear();
  running = outer;
}

void JobLoop::WakeAll() {
  wakesAll_ = true;
  network_.Wake();
}

void JobLoop::Pause(SessionTime until) {
  if (running == nullptr) return std::this_thread::sleep_until(until);
  const Number own = running->present_;
  running->pausing_.insert(own);
  running->Suspend(until);
  running->pausing_.erase(own);
}

JobLoop::Peer JobLoop::Add(Receiver& receiver) {
  auto peer = static_cast<Peer>(connections_.size());
  if (free_.empty()) {
    connections_.emplace_back();
  } else {
    peer = free_.back();
    free_.pop_back();
  }
  connections_[peer].receiver = &receiver;
  return peer;
}

void JobLoop::Remove(Peer peer) {
  network_.Close(peer);
  connections_[peer] = {};
  free_.push_back(peer);
}

void JobLoop::Wait(Peer peer, SessionTime until) {
  connections_[peer].isAwaited = true;
  connections_[peer].work = present_;
  Suspend(until);
  connections_[peer].isAwaited = false;
}

bool JobLoop::Continue() {
  if (wakesAll_.exchange(false)) {
    for (const Number work : pausing_) timers_.Set(work, SessionTime::min());
  }
  std::vector<Number> due;
  while (const auto next = timers_.TakeDue(Now())) due.push_back(*next);
  for (const Number next : due) {
    present_ = next;
    works_[next]->Resume();
    if (!works_[next]->IsFinished()) continue;
    works_[next].reset();
    --unfinished_;
  }
  return unfinished_ > 0;
}

void JobLoop::Suspend(SessionTime until) {
  if (until != SessionTime::max()) timers_.Set(present_, until);
  works_[present_]->Suspend();
}

}  // namespace AdvancedControl
