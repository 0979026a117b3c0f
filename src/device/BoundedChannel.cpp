#include "device/BoundedChannel.h"

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
#include <QEventLoop>
#include <QTimer>

namespace {

using Clock = std::chrono::steady_clock;

PjtReply Unanswered(const PjtCommand& command) {
  return {.result = RefusedResult(command.operation), .answered = false};
}

// A channel that throws has not answered.
PjtReply Ask(ProjectorChannel& channel, const std::optional<std::vector<PjtCommand>>& announced,
             const PjtCommand& command) {
  try {
    if (announced) channel.Announce(*announced);
    return channel.Execute(command);
  } catch (...) {
    return Unanswered(command);
  }
}

bool HasEventLoop() {
  return QCoreApplication::instance() && QAbstractEventDispatcher::instance() != nullptr;
}

}  // namespace

/// Shared with the worker, which may outlive the channel object by one command.
struct BoundedChannel::State {
  State(std::shared_ptr<ProjectorChannel> channel, const Limits& bounds)
      : inner(std::move(channel)), limits(bounds) {}

  void Work();
  std::optional<PjtReply> WaitForReply();
  void RunEventLoop(Clock::time_point deadline);

  std::shared_ptr<ProjectorChannel> inner;  ///< The worker's own once there is a worker.
  const Limits limits;
  std::thread worker;

  std::mutex mutex;
  std::condition_variable commandGiven;
  std::condition_variable replyGiven;
  // All below under the mutex.
  std::optional<PjtCommand> command;                 ///< Given, and not yet taken by the worker.
  std::optional<std::vector<PjtCommand>> announced;  ///< Likewise.
  std::optional<PjtReply> reply;
  bool outstanding = false;  ///< Given, and not yet back from the inner channel.
  bool awaited = false;      ///< Somebody waits for it.
  bool ended = false;
  QEventLoop* loop = nullptr;  ///< The loop that runs while somebody waits.
  Clock::time_point silentUntil{};
};

void BoundedChannel::State::Work() {
  std::unique_lock lock(mutex);
  while (true) {
    commandGiven.wait(lock, [this] { return ended || command; });
    if (ended) {
      const auto last = std::exchange(inner, nullptr);
      lock.unlock();
      return;
    }
    const PjtCommand taken = *std::exchange(command, std::nullopt);
    const auto reads = std::exchange(announced, std::nullopt);
    lock.unlock();
    const PjtReply answer = Ask(*inner, reads, taken);
    lock.lock();
    outstanding = false;
    if (!awaited) continue;
    reply = answer;
    replyGiven.notify_one();
    if (loop) QMetaObject::invokeMethod(loop, &QEventLoop::quit, Qt::QueuedConnection);
  }
}

void BoundedChannel::State::RunEventLoop(Clock::time_point deadline) {
  QEventLoop eventLoop;
  {
    const std::lock_guard lock(mutex);
    if (reply) return;
    loop = &eventLoop;
  }
  const auto rest = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
  QTimer::singleShot(std::max(rest, std::chrono::milliseconds::zero()), Qt::PreciseTimer,
                     &eventLoop, &QEventLoop::quit);
  eventLoop.exec(QEventLoop::ExcludeUserInputEvents);
  const std::lock_guard lock(mutex);
  loop = nullptr;
}

std::optional<PjtReply> BoundedChannel::State::WaitForReply() {
  const Clock::time_point deadline = Clock::now() + limits.timeOut;
  const auto replied = [this] { return reply.has_value(); };
  std::unique_lock lock(mutex);
  if (HasEventLoop()) {
    const Clock::time_point quick = std::min(deadline, Clock::now() + limits.quickAnswer);
    if (!replyGiven.wait_until(lock, quick, replied)) {
      lock.unlock();
      RunEventLoop(deadline);
      lock.lock();
    }
  }
  // Also where an ending application lets no event loop run.
  replyGiven.wait_until(lock, deadline, replied);
  awaited = false;
  return std::exchange(reply, std::nullopt);
}

BoundedChannel::BoundedChannel(std::shared_ptr<ProjectorChannel> inner, const Limits& limits)
    : state_(std::make_shared<State>(std::move(inner), limits)) {}

BoundedChannel::~BoundedChannel() {
  bool returnsSoon = false;
  {
    const std::lock_guard lock(state_->mutex);
    state_->ended = true;
    returnsSoon = !state_->outstanding;
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
  // Events that run while we wait may destroy this object.
  const std::shared_ptr<State> state = state_;
  {
    const std::lock_guard lock(state->mutex);
    if (!state->inner || state->ended || state->outstanding || state->awaited ||
        Clock::now() < state->silentUntil) {
      return Unanswered(command);
    }
    if (!state->worker.joinable()) {
      try {
        state->worker = std::thread([state] { state->Work(); });
      } catch (const std::system_error&) {
        return Unanswered(command);
      }
    }
    state->command = command;
    state->outstanding = true;
    state->awaited = true;
  }
  state->commandGiven.notify_one();

  const std::optional<PjtReply> reply = state->WaitForReply();
  if (reply && reply->answered) return *reply;
  const std::lock_guard lock(state->mutex);
  state->silentUntil = Clock::now() + state->limits.retryAfter;
  return reply.value_or(Unanswered(command));
}

void BoundedChannel::Announce(std::span<const PjtCommand> reads) {
  const std::lock_guard lock(state_->mutex);
  state_->announced.emplace(reads.begin(), reads.end());
}

ConnectionState BoundedChannel::Connection() const {
  const std::lock_guard lock(state_->mutex);
  return state_->inner ? state_->inner->Connection() : ConnectionState::None;
}
