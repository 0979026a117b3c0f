#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "settings/Rows.h"

namespace AdvancedControl {

// Reads and changes settings as their rows say, for the rows of dialogs, for programs without a
// window and for snapshots. Values are device values. Call these functions on the thread on which
// the connection's channel may be called.

/// Asks for the input source that a row belongs to. Nothing if the projector does not report it; 0,
/// without asking, for a row that belongs to none.
PROJECTOR_SETTINGS_EXPORT std::optional<int> AskSource(CPjtInterface& projector, OfSource of,
                                                       int modelCode);
/// The source that a model uses while it is not running. Nothing for a row without such a source.
std::optional<int> StandbySource(OfSource of, int modelCode);
/// The first questions of `AskSource`, in order.
PROJECTOR_SETTINGS_EXPORT std::span<const Call> SourceQuestions(OfSource of);

/// Reads a row's setting. Nothing if that fails, or for a row that shows no setting. If `source` is
/// given, the projector is not asked for the row's source.
PROJECTOR_SETTINGS_EXPORT std::optional<int> ReadRow(CPjtInterface& projector, const PageRow& row,
                                                     const ModelData& model,
                                                     std::optional<int> source = {});

/// Options for sending a value.
struct Sending {
  std::string text{};           ///< Text of the entry, which some connections use.
  std::optional<int> source{};  ///< Used instead of the present source.
  /// Asked before each step if the setting has no setter; false stops.
  std::function<bool()> goesOn = [] { return true; };
  std::optional<int> position{};  ///< Of the chosen entry, if several have the value.
};

/// The result of sending a value.
enum class Sent : std::uint8_t {
  Nothing,  ///< The row does not allow it, its input source is unknown, or it is too far to step.
  Refused,
  Accepted,  ///< Also if the setter has no result.
};

/// Sends a value: that of a list's entry, or 0 or 1 for a switch. A row without a setter is stepped
/// to it, see `StepTo`.
PROJECTOR_SETTINGS_EXPORT Sent SendRow(CPjtInterface& projector, const PageRow& row,
                                       const ModelData& model, int value, const Sending& how = {});

/// The source that a step addresses, given the result of `AskSource`; nothing if there must be no
/// step.
PROJECTOR_SETTINGS_EXPORT std::optional<int> SteppedSource(OfSource of, std::optional<int> asked);

/// The result of a step: refused, or the new value. Neither if nothing was sent, if the step had no
/// effect, or if the new value could not be read.
struct Stepped {
  bool refused = false;
  std::optional<int> value{};
  bool unchanged = false;  ///< The step had no effect, but the row shows no error for that.
};

/// Steps a row within `bounds`. `bounds` and `known`, the last known value, are shown values.
PROJECTOR_SETTINGS_EXPORT Stepped Step(CPjtInterface& projector, const ValueRow& row, bool upwards,
                                       int source, Range bounds, int known);

/// Makes one step from the value `present` and returns the new value.
using Stepper = std::function<Stepped(bool upwards, int present)>;

/// The largest distance that is stepped.
inline constexpr int kMostSteps = 4096;

/// Steps from `present` to `wanted` while `goesOn` returns true; makes no step if they are more
/// than `kMostSteps` apart. Ends after a step that comes no nearer or goes past it. A refused step
/// is repeated a few times, because it may have been lost.
PROJECTOR_SETTINGS_EXPORT Sent StepTo(int present, int wanted, const Stepper& step,
                                      const std::function<bool()>& goesOn);

}  // namespace AdvancedControl
