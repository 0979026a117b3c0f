#include "app/acctl/Signals.h"

#include <atomic>
#include <csignal>
#include <cstdint>
#include <ctime>

namespace {

// Two signals may be handled at once, by two threads.
std::atomic<int> receivedSignal{0};
std::atomic<std::int64_t> receivedAt{0};
static_assert(std::atomic<int>::is_always_lock_free);
static_assert(std::atomic<std::int64_t>::is_always_lock_free);

std::int64_t Milliseconds() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1'000'000;
}

void Receive(int signal) {
  constexpr std::int64_t kSameRequest = 1000;
  const std::int64_t now = Milliseconds();
  std::int64_t first = 0;
  if (receivedAt.compare_exchange_strong(first, now)) {
    receivedSignal = signal;
  } else if (now - first >= kSameRequest) {
    std::signal(signal, SIG_DFL);
    std::raise(signal);  // as soon as this returns
  }
}

}  // namespace

void WatchSignals() {
  constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};
  struct sigaction action {};
  action.sa_handler = Receive;
  action.sa_flags = SA_RESTART;
  for (const int signal : kSignals) sigaddset(&action.sa_mask, signal);
  for (const int signal : kSignals) {
    struct sigaction inherited {};
    sigaction(signal, nullptr, &inherited);
    if (inherited.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
  }
}

int ReceivedSignal() { return receivedSignal; }
