#include "app/simulator/fleet/FleetEvents.h"

#include <array>
#include <cstddef>
#include <sys/epoll.h>
#include <unistd.h>
#include <utility>

FleetEvents::~FleetEvents() {
  if (epoll_ >= 0) close(epoll_);
}

bool FleetEvents::Open() {
  epoll_ = epoll_create1(EPOLL_CLOEXEC);
  return epoll_ >= 0;
}

void FleetEvents::Start(Handler handler) {
  handler_ = std::move(handler);
  notifier_ = std::make_unique<QSocketNotifier>(epoll_, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this] { HandleAll(); });
}

bool FleetEvents::Watch(int descriptor, std::uint32_t events) {
  epoll_event event{.events = events, .data = {.fd = descriptor}};
  return epoll_ctl(epoll_, EPOLL_CTL_ADD, descriptor, &event) == 0 ||
         epoll_ctl(epoll_, EPOLL_CTL_MOD, descriptor, &event) == 0;
}

void FleetEvents::Ignore(int descriptor) { epoll_ctl(epoll_, EPOLL_CTL_DEL, descriptor, nullptr); }

void FleetEvents::HandleAll() {
  std::array<epoll_event, 512> events{};
  const int count = epoll_wait(epoll_, events.data(), static_cast<int>(events.size()), 0);
  for (int i = 0; i < count; ++i) {
    const epoll_event& event = events[static_cast<std::size_t>(i)];
    handler_(event.data.fd, event.events);
  }
}
