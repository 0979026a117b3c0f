#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <sys/epoll.h>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

/// Waits for events of many files. One thread calls `Wait` and `Take` in turn; `Watch` and `Wake`
/// may be called from any thread at any time.
class FileEvents {
 public:
  FileEvents();
  ~FileEvents();
  FileEvents(const FileEvents&) = delete;
  FileEvents& operator=(const FileEvents&) = delete;

  /// Watches an open file until it is closed. `name` identifies its events and must not be
  /// `UINT64_MAX`; `events` are those of epoll.
  void Watch(int file, std::uint64_t name, std::uint32_t events = EPOLLIN);
  /// Waits for an event, for `Wake`, or until the time `until`.
  void Wait(SessionTime until);
  /// Ends the wait under way or the next one.
  void Wake() const;
  /// A file that does the same when it is written to.
  int WakeFile() const { return wakes_; }
  /// The events of the last wait, each once; valid until the next wait. Some may have names that
  /// are no longer in use.
  std::span<const epoll_event> Take();

 private:
  const int epoll_;
  const int wakes_;
  std::array<epoll_event, 64> events_{};
  std::size_t count_ = 0;
};

}  // namespace AdvancedControl
