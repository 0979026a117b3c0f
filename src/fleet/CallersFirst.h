#pragma once

#include <atomic>
#include <mutex>
#include <thread>

#include "Namespace.h"

namespace AdvancedControl {

/// A mutex for a loop that locks it all the time and for callers that need it now and then, such as
/// a user interface. Callers take precedence.
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
