#pragma once

#include <chrono>
#include <optional>

#include "Namespace.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// Switches a simulated projector on and off, which may take time. `state` is its running state,
/// which the caller keeps. Use from one thread at a time.
class PowerSwitch {
 public:
  void SetTimes(std::chrono::milliseconds warmUp, std::chrono::milliseconds coolDown);
  bool TakesTime() const { return warmUp_.count() > 0 || coolDown_.count() > 0; }

  /// Starts to switch. False if the projector refuses, because it is switching already.
  bool Switch(bool on, int& state);
  /// Sets `state` to standby once the projector has cooled down. To be called before it is read.
  void Update(int& state);
  /// The projector is in its present state at once.
  void Cancel() { switchedAt_.reset(); }
  PowerState Power(int state) const;

 private:
  using Clock = std::chrono::steady_clock;

  std::chrono::milliseconds warmUp_{0};
  std::chrono::milliseconds coolDown_{0};
  std::optional<Clock::time_point> switchedAt_;  ///< When switching will be over.
};

}  // namespace AdvancedControl
