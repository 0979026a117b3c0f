#include "device/channels/BoundedChannel.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

#include "device/DropException.h"

namespace AdvancedControl {

namespace {

using Clock = std::chrono::steady_clock;

// If the next command follows within the pause, the event loop does not run in between. A series of
// such commands must not hold it up for longer than this.
constexpr std::chrono::milliseconds kPause{2};
constexpr std::chrono::milliseconds kStandstill{30};

// After a failure within this time, the next attempt is cheap.
constexpr std::chrono::milliseconds kQuickFailure{100};
constexpr std::chrono::milliseconds kRetryAfterQuickFailure{200};

PjtReply Unanswered(const PjtCommand& command) {
  return {.result = RefusedResult(command.operation), .answered = false};
}

PjtReply Unsent(const PjtCommand& command) {
  PjtReply reply = Unanswered(command);
  reply.unsent = true;
  return reply;
}

// An exception of the channel counts as no answer.
PjtReply Ask(ProjectorChannel& channel, std::optional<std::chrono::milliseconds> longest,
             const std::optional<std::vector<PjtCommand>>& announced, const PjtCommand& command) {
  try {
    if (longest) channel.GiveUpAfter(*longest);
    if (announced) channel.Announce(*announced);
    return channel.Execute(command);
  } catch (...) {
    DropException();
    return Unanswered(command);
  }
}

bool SpendIdleTime(ProjectorChannel& channel) {
  try {
    return channel.UseIdleTime();
  } catch (...) {
    DropException();
    return false;
  }
}

bool Tend(ProjectorChannel& channel, Clock::time_point lastUse) {
  try {
    return channel.TendConnection(
        std::chrono::floor<std::chrono::milliseconds>(Clock::now() - lastUse));
  } catch (...) {
    DropException();
    return false;
  }
}

// Without an application, Qt passes no events on, and an event loop would never end.
bool HasEventLoop() {
  // unreachable: every test program has an application
  return QCoreApplication::instance() && QAbstractEventDispatcher::instance() != nullptr;
}

}  // namespace

/// One waiting `Execute`, on its stack.
struct Wait {
  std::optional<PjtReply> reply;
  bool abandoned = false;
  QEventLoop* loop = nullptr;  ///< The event loop that runs during the wait, if any.
};

/// Shared with the worker thread, which may outlive the channel object by one command.
struct BoundedChannel::State {
  State(std::shared_ptr<ProjectorChannel> channel, const Limits& bounds)
      : inner(std::move(channel)), limits(bounds) {}

  void Work();
  void WakeUp();
  bool WaitUntil(std::unique_lock<std::mutex>& lock, Wait& wait, auto done);

  std::shared_ptr<ProjectorChannel> inner;  ///< Used only by the worker once it runs.
  const Limits limits;
  std::thread worker;

  std::mutex mutex;
  std::condition_variable commandGiven;
  std::condition_variable changed;  ///< Wakes up waiting threads.
  // Everything below is protected by the mutex.
  std::optional<PjtCommand> command;                 ///< Not yet taken by the worker.
  std::optional<std::vector<PjtCommand>> announced;  ///< Not yet taken by the worker.
  std::optional<std::chrono::milliseconds>
      longest;                ///< Time-out of a command, if less than the limit.
  bool outstanding = false;   ///< A command has not yet returned from the inner channel.
  bool usesIdleTime = false;  ///< The inner channel uses the idle time right now.
  bool abandoned = false;     ///< The next command waits for the outstanding one.
  bool ended = false;
  Wait* waiting = nullptr;
  Wait* recipient =
      nullptr;  ///< The wait that gets the reply to the outstanding command; null if none.
  Clock::time_point silentUntil{};
  Clock::time_point lastReturn{};
  Clock::time_point stillSince{};  ///< When the event loop last ran, as far as known.
};

void BoundedChannel::State::WakeUp() {
  if (waiting == nullptr) return;
  changed.notify_one();
  if (waiting->loop) {
    QCoreApplication::postEvent(waiting->loop, new QEvent(QEvent::Quit));
  }
}

void BoundedChannel::State::Work() {
  std::shared_ptr<ProjectorChannel> last;  // is let go after the lock
  std::unique_lock lock(mutex);
  const auto isCalled = [this] { return ended || command; };
  bool hasMoreToDo = false;
  bool isConnected = false;
  Clock::time_point lastUse;
  for (;;) {
    while ((hasMoreToDo || isConnected) &&
           !commandGiven.wait_for(lock, hasMoreToDo ? limits.idle : limits.tend, isCalled)) {
      usesIdleTime = true;
      lock.unlock();
      if (hasMoreToDo) {
        hasMoreToDo = SpendIdleTime(*inner);
      } else {
        isConnected = Tend(*inner, lastUse);
      }
      lock.lock();
      usesIdleTime = false;
    }
    commandGiven.wait(lock, isCalled);
    if (ended) return last.swap(inner);
    const PjtCommand taken = *std::exchange(command, std::nullopt);
    const auto reads = std::exchange(announced, std::nullopt);
    const auto time = longest;
    lock.unlock();
    const PjtReply answer = Ask(*inner, time, reads, taken);
    lock.lock();
    outstanding = false;
    hasMoreToDo = answer.answered;
    isConnected = true;  // until the inner channel reports otherwise
    lastUse = Clock::now();
    if (Wait* to = std::exchange(recipient, nullptr)) to->reply = answer;
    WakeUp();
  }
}

/// False when the time is over or the wait was abandoned.
bool BoundedChannel::State::WaitUntil(std::unique_lock<std::mutex>& lock, Wait& wait, auto done) {
  const Clock::time_point now = Clock::now();
  const Clock::time_point deadline =
      now + std::min(limits.timeOut, longest.value_or(limits.timeOut));
  const Clock::time_point quick =
      std::min({deadline, now + limits.quickAnswer, stillSince + kStandstill});
  const auto over = [&] { return wait.abandoned || done(); };
  if (HasEventLoop() && !changed.wait_until(lock, quick, over)) {
    QEventLoop eventLoop;
    wait.loop = &eventLoop;
    lock.unlock();
    const auto rest = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    QTimer::singleShot(std::max(rest, std::chrono::milliseconds::zero()), Qt::PreciseTimer,
                       &eventLoop, &QEventLoop::quit);
    eventLoop.exec();
    lock.lock();
    wait.loop = nullptr;
    stillSince = Clock::now();
  }
  // Also used if the application is ending, when no event loop can run.
  changed.wait_until(lock, deadline, over);
  return !wait.abandoned && done();
}

// Asks the inner channel; returns `otherwise` if it throws.
template <typename Value>
Value BoundedChannel::AskInner(State& state, Value otherwise, auto ask) {
  const std::lock_guard lock(state.mutex);
  try {
    if (state.inner) return ask(*state.inner);
  } catch (...) {
    DropException();
  }
  return otherwise;
}

BoundedChannel::BoundedChannel(std::shared_ptr<ProjectorChannel> inner, const Limits& limits)
    : state_(std::make_shared<State>(std::move(inner), limits)) {}

BoundedChannel::~BoundedChannel() {
  bool returnsSoon = false;
  {
    const std::lock_guard lock(state_->mutex);
    state_->ended = true;
    returnsSoon = !state_->outstanding && !state_->usesIdleTime;
  }
  state_->commandGiven.notify_one();
  if (!state_->worker.joinable()) return;
  if (returnsSoon) {
    state_->worker.join();
  } else {
    state_->worker.detach();
  }
}

PjtReply BoundedChannel::Execute(const PjtCommand& command) {
  // Events handled during the wait may destroy this object.
  const std::shared_ptr<State> state = state_;
  std::unique_lock lock(state->mutex);
  if (!state->inner || state->waiting || (state->outstanding && !state->abandoned) ||
      Clock::now() < state->silentUntil) {
    return Unsent(command);
  }
  if (!state->worker.joinable()) {
    try {
      state->worker = std::thread([state] { state->Work(); });
    } catch (const std::system_error&) {
      return Unsent(command);
    }
  }

  Wait wait;
  state->waiting = &wait;
  const Clock::time_point start = Clock::now();
  if (start > state->lastReturn + kPause) state->stillSince = start;
  const bool free =
      !state->outstanding || state->WaitUntil(lock, wait, [&] { return !state->outstanding; });
  const bool isSent = free && !state->ended;
  if (isSent) {
    state->command = command;
    state->outstanding = true;
    state->recipient = &wait;
    state->commandGiven.notify_one();
    state->WaitUntil(lock, wait, [&] { return wait.reply.has_value(); });
  }
  // After an abandoned wait, another command may be waiting.
  if (state->waiting == &wait) state->waiting = nullptr;
  if (state->recipient == &wait) state->recipient = nullptr;
  state->lastReturn = Clock::now();
  if (wait.reply && wait.reply->answered) return *wait.reply;
  if (!wait.abandoned) {
    state->abandoned = false;
    const auto pause = state->limits.retryAfter;
    const bool isQuick = state->lastReturn <= start + kQuickFailure;
    state->silentUntil =
        state->lastReturn + (isQuick ? std::min(pause, kRetryAfterQuickFailure) : pause);
  }
  PjtReply reply = wait.reply.value_or(isSent ? Unanswered(command) : Unsent(command));
  reply.abandoned = wait.abandoned;
  return reply;
}

void BoundedChannel::GiveUpAfter(std::chrono::milliseconds time) {
  const std::lock_guard lock(state_->mutex);
  state_->longest = time;
}

void BoundedChannel::Abandon() {
  const std::lock_guard lock(state_->mutex);
  state_->silentUntil = {};
  state_->abandoned = true;
  state_->announced.emplace();
  Wait* const wait = state_->waiting;
  if (wait == nullptr) return;
  wait->abandoned = true;
  if (state_->recipient == wait) state_->recipient = nullptr;
  state_->WakeUp();
  state_->waiting = nullptr;
}

void BoundedChannel::Announce(std::span<const PjtCommand> reads) {
  const std::lock_guard lock(state_->mutex);
  state_->announced.emplace(reads.begin(), reads.end());
}

ConnectionState BoundedChannel::Connection() const {
  return AskInner(*state_, ConnectionState::None,
                  [](const auto& inner) { return inner.Connection(); });
}

std::optional<SourceList> BoundedChannel::Inputs() {
  return AskInner(*state_, std::optional<SourceList>(), [](auto& inner) { return inner.Inputs(); });
}

std::optional<PowerState> BoundedChannel::Power() const {
  return AskInner(*state_, std::optional<PowerState>(),
                  [](const auto& inner) { return inner.Power(); });
}

}  // namespace AdvancedControl
