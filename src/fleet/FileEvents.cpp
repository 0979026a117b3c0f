#include "fleet/FileEvents.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <sys/eventfd.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace AdvancedControl {

namespace {

constexpr std::uint64_t kWakeEvent = UINT64_MAX;

int Checked(int file) {
  if (file < 0) throw std::system_error(errno, std::generic_category(), "event file");
  return file;
}

}  // namespace

FileEvents::FileEvents()
    : epoll_(Checked(epoll_create1(EPOLL_CLOEXEC))),
      wakes_(Checked(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))) {
  Watch(wakes_, kWakeEvent);
}

FileEvents::~FileEvents() {
  close(wakes_);
  close(epoll_);
}

void FileEvents::Watch(int file, std::uint64_t name, std::uint32_t events) {
  epoll_event event{.events = events, .data = {.u64 = name}};
  epoll_ctl(epoll_, EPOLL_CTL_ADD, file, &event);
}

void FileEvents::Wait(SessionTime until) {
  using Milliseconds = std::chrono::milliseconds;
  constexpr Milliseconds kLongest{60'000};
  const auto now = std::chrono::steady_clock::now();
  const auto rest = until <= now             ? Milliseconds::zero()
                    : until - now > kLongest ? kLongest
                                             : std::chrono::ceil<Milliseconds>(until - now);
  const int count = epoll_wait(epoll_, events_.data(), static_cast<int>(events_.size()),
                               static_cast<int>(rest.count()));
  count_ = static_cast<std::size_t>(std::max(0, count));
  for (const epoll_event& event : std::span(events_).first(count_)) {
    if (event.data.u64 != kWakeEvent) continue;
    std::uint64_t times = 0;
    static_cast<void>(!read(wakes_, &times, sizeof times));
  }
}

void FileEvents::Wake() const {
  const std::uint64_t one = 1;
  static_cast<void>(!write(wakes_, &one, sizeof one));
}

std::span<const epoll_event> FileEvents::Take() {
  return std::span<const epoll_event>(events_).first(std::exchange(count_, 0));
}

}  // namespace AdvancedControl
