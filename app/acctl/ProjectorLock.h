#pragma once

#include <chrono>
#include <functional>

#include "device/Connect.h"

/// Keeps other runs of the program by the same user away from one projector. Released when it is
/// destroyed or the process dies.
class ProjectorLock {
 public:
  /// Waits until the lock is free, for at most `timeOut`. `isInterrupted` is called before each
  /// pause, that is, only if the lock is not free at once; if it returns true, the wait ends.
  ProjectorLock(const ProjectorAddress& address, std::chrono::milliseconds timeOut,
                const std::function<bool()>& isInterrupted);
  ~ProjectorLock();
  ProjectorLock(const ProjectorLock&) = delete;
  ProjectorLock& operator=(const ProjectorLock&) = delete;

  /// False if another run still holds it. Also true if locking is impossible, for example without a
  /// writable folder: the work then goes on without a lock.
  bool IsHeld() const { return isHeld_; }

 private:
  int file_ = -1;
  bool isHeld_ = true;
};
