#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <unordered_map>

/// Limits how often something happens to each of many things: `burst` times at once, and
/// `perMinute` times in the long run.
class RateLimit {
 public:
  using Time = std::chrono::steady_clock::time_point;

  RateLimit(double perMinute, double burst) : perMinute_(perMinute), burst_(burst) {}

  /// Whether it may happen to the thing now. If so, it is counted.
  bool Take(std::size_t thing, Time now) {
    auto& [left, since] = things_.try_emplace(thing, Left{burst_, now}).first->second;
    const auto minutes = std::chrono::duration<double, std::ratio<60>>(now - since).count();
    left = std::min(burst_, left + minutes * perMinute_);
    since = now;
    if (left < 1) return false;
    left -= 1;
    return true;
  }

 private:
  struct Left {
    double count;
    Time since;
  };

  const double perMinute_;
  const double burst_;
  std::unordered_map<std::size_t, Left> things_;
};
