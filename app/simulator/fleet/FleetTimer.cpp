#include "app/simulator/fleet/FleetTimer.h"

#include <algorithm>
#include <utility>

FleetTimer::FleetTimer() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { RunDue(); });
}

void FleetTimer::RunAt(Clock::time_point due, Action action) {
  due_.emplace(due, std::move(action));
  StartTimer();
}

void FleetTimer::RunDue() {
  while (!due_.empty() && due_.begin()->first <= Clock::now()) {
    const Action action = std::move(due_.extract(due_.begin()).mapped());
    action();
  }
  if (!due_.empty()) StartTimer();
}

void FleetTimer::StartTimer() {
  using std::chrono::milliseconds;
  const auto wait = std::chrono::ceil<milliseconds>(due_.begin()->first - Clock::now());
  timer_.start(std::max(wait, milliseconds::zero()));
}
