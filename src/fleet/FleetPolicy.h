#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

#include "Namespace.h"

namespace AdvancedControl {

/// How politely a fleet asks. Every pause counts from the beginning of a visit to the next.
struct FleetPolicy {
  std::chrono::milliseconds interval{60'000};  ///< The shortest pause of one that answers.
  /// Each pause is longer by up to this share of itself, at random.
  double jitter = 0.1;
  /// The pause of one that does not answer doubles from the interval up to this.
  std::chrono::milliseconds longestPause{600'000};
  /// The shortest pause where somebody wants to know at once.
  std::chrono::milliseconds soonest{5'000};
  /// Projectors visited at the same time, with a connection each.
  std::size_t visitsAtOnce = 1000;
  std::chrono::milliseconds connect{2000};  ///< Time for connecting, until the projector greets.
  std::chrono::milliseconds answer{2000};   ///< Time for each answer.
  std::size_t history = 16;                 ///< Changes kept for each projector.
  std::uint32_t seed = 1;                   ///< Of the jitter.
};

}  // namespace AdvancedControl
