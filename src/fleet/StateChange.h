#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Namespace.h"
#include "fleet/LiveState.h"

namespace AdvancedControl {

/// The parts of a live state that change with an event.
enum class StateField : std::uint8_t {
  Reachability,  ///< `Reachability`.
  Power,         ///< `PowerState`.
  Source,        ///< Device value and name.
  Problem,       ///< `ProblemGrade` of the part `index`.
  Blank,
  Mute,
  Freeze,       ///< 0 or 1.
  LampHours,    ///< Of the lamp `index`.
  FilterHours,  ///< Hours.
  Drift,        ///< Settings that differ.
};

/// A value of a field. Without a number it is not known.
struct FieldValue {
  std::optional<int> number{};
  std::string name{};

  friend bool operator==(const FieldValue&, const FieldValue&) = default;
};

struct StateChange {
  StateField field{};
  std::uint8_t index = 0;
  FieldValue before{};
  FieldValue now{};
  WallTime time{};

  friend bool operator==(const StateChange&, const StateChange&) = default;
};

/// Everything that differs, in the order of the fields.
std::vector<StateChange> ChangesBetween(const LiveState& before, const LiveState& now,
                                        WallTime time);

/// Whether a change belongs in the history: hours pass without being news.
bool IsNews(const StateChange& change);

}  // namespace AdvancedControl
