#pragma once

#include <atomic>
#include <mutex>
#include <thread>

#include "Namespace.h"

namespace AdvancedControl {

/// A mutex that a loop takes again and again, and others now and then. The others go first; one of
/// them may be a user interface.
class CallersFirst {
 public:
  /// Runs `use` under the mutex, and returns its result.
  auto ForCaller(const auto& use) {
    ++callers_;
    const std::lock_guard lock(mutex_);
    --callers_;
    return use();
  }
  /// The same for the loop, after all callers that wait.
  auto ForLoop(const auto& use) {
    while (callers_ > 0) std::this_thread::yield();
    const std::lock_guard lock(mutex_);
    return use();
  }

 private:
  std::mutex mutex_;
  std::atomic<int> callers_ = 0;  ///< Waiting.
};

}  // namespace AdvancedControl
