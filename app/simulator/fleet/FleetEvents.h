#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include <QSocketNotifier>

/// The events of many sockets, from one epoll descriptor that the event loop watches.
class FleetEvents {
 public:
  /// Handles the events (`EPOLLIN`, …) of a descriptor.
  using Handler = std::function<void(int descriptor, std::uint32_t events)>;

  FleetEvents() = default;
  ~FleetEvents();
  FleetEvents(const FleetEvents&) = delete;
  FleetEvents& operator=(const FleetEvents&) = delete;

  /// Returns whether it succeeded; otherwise errno has the reason.
  bool Open();
  /// From now on calls `handler` for each event. It may close any descriptor.
  void Start(Handler handler);

  /// Watches for these events only, from now on. Returns whether it succeeded; otherwise errno has
  /// the reason. A descriptor that is closed is no longer watched.
  bool Watch(int descriptor, std::uint32_t events);
  void Ignore(int descriptor);

 private:
  void HandleAll();

  int epoll_ = -1;
  Handler handler_;
  std::unique_ptr<QSocketNotifier> notifier_;
};
