#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>

/// Counts times by their length, in the form that metrics stores expect.
class LatencyHistogram {
 public:
  /// Seconds; a last bucket has everything beyond.
  static constexpr std::array kBounds{0.005, 0.01, 0.025, 0.05, 0.1, 0.25, 0.5, 1.0, 2.0};

  void Add(std::chrono::microseconds time) {
    const double seconds = std::chrono::duration<double>(time).count();
    for (std::size_t i = 0; i < kBounds.size(); ++i) {
      if (seconds <= kBounds.at(i)) ++upTo_.at(i);
    }
    ++count_;
    sum_ += seconds;
  }
  /// How many took at most `kBounds[i]`.
  std::uint64_t UpTo(std::size_t i) const { return upTo_.at(i); }
  std::uint64_t Count() const { return count_; }
  double Sum() const { return sum_; }

 private:
  std::array<std::uint64_t, kBounds.size()> upTo_{};
  std::uint64_t count_ = 0;
  double sum_ = 0;
};
