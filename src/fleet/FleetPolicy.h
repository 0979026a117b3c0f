#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

#include "Namespace.h"

namespace AdvancedControl {

/// How often a fleet visits its projectors. Pauses are measured from the beginning of a visit to
/// the beginning of the next.
struct FleetPolicy {
  std::chrono::milliseconds interval{60'000};  ///< Shortest pause for a projector that answers.
  /// Each pause is extended at random, by up to this share of it.
  double jitter = 0.1;
  /// Longest pause for a projector that does not answer. Its pause doubles with each failure.
  std::chrono::milliseconds longestPause{600'000};
  /// Shortest pause if a visit was requested, see `Fleet::AskSoon`.
  std::chrono::milliseconds soonest{5'000};
  /// Projectors visited at the same time, with a connection each.
  std::size_t visitsAtOnce = 1000;
  std::chrono::milliseconds connect{2000};  ///< Time for connecting, until the projector greets.
  std::chrono::milliseconds answer{2000};   ///< Time for each answer.
  std::size_t history = 16;                 ///< Changes kept for each projector.
  /// Visits no address that somebody holds. False for an owner that holds the addresses itself.
  bool avoidsHeld = true;
  std::uint32_t seed = 1;  ///< For the random part of the pauses.
};

}  // namespace AdvancedControl
