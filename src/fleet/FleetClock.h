#pragma once

#include <chrono>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

/// Date and time of day.
using WallTime = std::chrono::system_clock::time_point;

/// The clocks that a fleet uses.
class FleetClock {
 public:
  virtual ~FleetClock() = default;
  virtual SessionTime Now() const = 0;
  virtual WallTime Wall() const = 0;
};

class SystemFleetClock final : public FleetClock {
 public:
  SessionTime Now() const override { return std::chrono::steady_clock::now(); }
  WallTime Wall() const override { return std::chrono::system_clock::now(); }
};

}  // namespace AdvancedControl
