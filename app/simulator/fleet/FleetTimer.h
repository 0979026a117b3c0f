#pragma once

#include <chrono>
#include <functional>
#include <map>

#include <QTimer>

/// Runs actions at given times while the event loop runs.
class FleetTimer {
 public:
  using Clock = std::chrono::steady_clock;
  using Action = std::function<void()>;

  FleetTimer();

  /// Runs `action` at `due`, or as soon as possible if that is past; actions of the same time in
  /// the order of the calls. An action may call this.
  void RunAt(Clock::time_point due, Action action);

 private:
  void RunDue();
  void StartTimer();

  std::multimap<Clock::time_point, Action> due_;
  QTimer timer_;
};
