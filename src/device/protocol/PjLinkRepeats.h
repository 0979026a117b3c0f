#pragma once

#include <optional>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

/// When a request is repeated: at growing intervals, until its time is over. Use from one thread at
/// a time.
class PjLinkRepeats {
 public:
  void Reset() { until_.reset(); }
  void Start(SessionTime until);
  bool HasStarted() const { return until_.has_value(); }
  /// Ends the time for repetitions.
  void End(SessionTime now) { until_ = now; }
  bool HasTime(SessionTime now) const { return until_ > now; }
  /// The time of the next repetition, if there is time for one.
  SessionTime Next(SessionTime now);

 private:
  std::optional<SessionTime> until_;
  std::chrono::milliseconds pause_{};
};

}  // namespace AdvancedControl
