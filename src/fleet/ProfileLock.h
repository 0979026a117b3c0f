#pragma once

#include <chrono>

#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// Keeps other programs from changing a profile file, from before it is read until it is written.
/// Released when it is destroyed or the process dies.
class PROJECTOR_FLEET_EXPORT ProfileLock {
 public:
  /// Does not have the lock yet.
  explicit ProfileLock(const QString& fileName);
  ~ProfileLock();
  ProfileLock(const ProfileLock&) = delete;
  ProfileLock& operator=(const ProfileLock&) = delete;

  /// Takes the lock, and waits that long for another program that has it. Returns one line if that
  /// one still has it: the file must not be changed then. Empty on success, and where locking is
  /// impossible, because the work goes on without a lock there.
  QString Take(std::chrono::milliseconds longest);

 private:
  const QString fileName_;
  const int folder_;
};

}  // namespace AdvancedControl
