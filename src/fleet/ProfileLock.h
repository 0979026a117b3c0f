#pragma once

#include <QString>

#include "Namespace.h"
#include "ProjectorFleetExport.h"

namespace AdvancedControl {

/// Keeps other programs from changing a profile file, from before it is read until it is written.
/// Released when it is destroyed or the process dies.
class PROJECTOR_FLEET_EXPORT ProfileLock {
 public:
  /// Waits for another program, but not longer than five seconds. Where locking is impossible, the
  /// work goes on without a lock.
  explicit ProfileLock(const QString& fileName);
  ~ProfileLock();
  ProfileLock(const ProfileLock&) = delete;
  ProfileLock& operator=(const ProfileLock&) = delete;

 private:
  const int folder_;
};

}  // namespace AdvancedControl
