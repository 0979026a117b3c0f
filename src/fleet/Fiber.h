#pragma once

#include <functional>
#include <memory>

#include "Namespace.h"

namespace AdvancedControl {

/// A function with a stack of its own, which can be suspended and resumed. Code that waits for
/// answers can thus run for many projectors on one thread. Use it on one thread only.
class Fiber {
 public:
  /// `run` begins with the first `Resume`. It must not throw.
  explicit Fiber(std::function<void()> run);
  /// `run` must have ended, or never begun.
  ~Fiber();
  Fiber(const Fiber&) = delete;
  Fiber& operator=(const Fiber&) = delete;

  /// Continues `run` until it calls `Suspend` or ends.
  void Resume();
  /// Called from inside `run`: returns with the next `Resume`. Must not be called from inside a
  /// `catch` block.
  void Suspend();
  bool IsFinished() const { return isFinished_; }

 private:
  class Stack;
  static void Enter(unsigned upper, unsigned lower);

  const std::function<void()> run_;
  const std::unique_ptr<Stack> stack_;
  bool isFinished_ = false;
};

}  // namespace AdvancedControl
