#pragma once

#include <chrono>

/// Notices that the process did nothing for a long time, for example because it was stopped.
class HangWatch {
 public:
  using Time = std::chrono::steady_clock::time_point;

  HangWatch(std::chrono::milliseconds longest, Time now) : longest_(longest), lived_(now) {}

  bool HasHung(Time now) const { return now - lived_ >= longest_; }
  /// Must be called several times in the longest time.
  void Live(Time now) { lived_ = now; }

 private:
  const std::chrono::milliseconds longest_;
  Time lived_;
};
