#pragma once

#include <chrono>
#include <functional>

#include "device/Connect.h"

/// Keeps other runs of the program by the same user away from one projector. Released when it is
/// destroyed or the process dies.
class ProjectorLock {
 public:
  /// Waits until the lock is free, for at most `timeOut`. `isInterrupted` is called before each
  /// pause, so not at all if the lock is free; if it returns true, the wait ends.
  ProjectorLock(const ProjectorAddress& address, std::chrono::milliseconds timeOut,
                const std::function<bool()>& isInterrupted);
  ~ProjectorLock();
  ProjectorLock(const ProjectorLock&) = delete;
  ProjectorLock& operator=(const ProjectorLock&) = delete;

  /// False if another run still has it. True also if locks are impossible, for example without a
  /// writable folder: work goes on without them.
  bool IsHeld() const { return isHeld_; }

 private:
  int file_ = -1;
  bool isHeld_ = true;
};
