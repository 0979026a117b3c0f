#include "simulator/PowerSwitch.h"

namespace AdvancedControl {

namespace {

// Values of the running state.
constexpr int kStandby = 0;
constexpr int kOn = 1;
constexpr int kCoolingDown = 2;

}  // namespace

void PowerSwitch::SetTimes(std::chrono::milliseconds warmUp, std::chrono::milliseconds coolDown) {
  warmUp_ = warmUp;
  coolDown_ = coolDown;
}

bool PowerSwitch::Switch(bool on, int& state) {
  if (state == (on ? kOn : kStandby)) return true;
  if (switchedAt_) return false;
  state = on ? kOn : kCoolingDown;
  switchedAt_ = Clock::now() + (on ? warmUp_ : coolDown_);
  return true;
}

void PowerSwitch::Update(int& state) {
  if (!switchedAt_ || Clock::now() < *switchedAt_) return;
  switchedAt_.reset();
  if (state == kCoolingDown) state = kStandby;
}

PowerState PowerSwitch::Power(int state) const {
  switch (state) {
    case kStandby:
      return PowerState::Standby;
    case kCoolingDown:
      return PowerState::CoolingDown;
    default:
      return switchedAt_ ? PowerState::WarmingUp : PowerState::On;
  }
}

}  // namespace AdvancedControl
