#pragma once

#include <chrono>
#include <functional>

#include "device/Connect.h"

/// Keeps the user's other runs of the program away from one projector. Held while it lives; a
/// process that dies holds it no longer.
class ProjectorLock {
 public:
  /// Waits until nobody has it, at most `timeOut`. `isInterrupted` is called before each pause, so
  /// not at all if nobody has it; true ends the wait.
  ProjectorLock(const ProjectorAddress& address, std::chrono::milliseconds timeOut,
                const std::function<bool()>& isInterrupted);
  ~ProjectorLock();
  ProjectorLock(const ProjectorLock&) = delete;
  ProjectorLock& operator=(const ProjectorLock&) = delete;

  /// False when somebody else still has it. True also where no lock can be had at all, as without
  /// a folder to write to: that is no reason not to work.
  bool IsHeld() const { return isHeld_; }

 private:
  int file_ = -1;
  bool isHeld_ = true;
};
