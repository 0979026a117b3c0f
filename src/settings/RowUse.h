#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "ProjectorSettingsExport.h"
#include "settings/Rows.h"

inline namespace AdvancedControl {

// Rows in use: what a row's data makes of the projector. Whoever reads or changes a setting does it
// here: the dialogs' rows, programs without a window, snapshots. Values are device values.

/// Asks for the input source that a row belongs to: nothing while the projector does not say
/// enough; 0, without asking, for a row that belongs to none.
PROJECTOR_SETTINGS_EXPORT std::optional<int> AskSource(CPjtInterface& projector, OfSource of,
                                                       int modelCode);
/// The source that stands for none: what a model plays while it does not run. Nothing for a row
/// that does not belong to it.
std::optional<int> StandbySource(OfSource of, int modelCode);
/// What `AskSource` will ask first, in order.
PROJECTOR_SETTINGS_EXPORT std::span<const Call> SourceQuestions(OfSource of);

/// Reads a row's setting; nothing when that fails, or for a row that shows none. `source` is taken
/// instead of asking for the one that the row belongs to.
PROJECTOR_SETTINGS_EXPORT std::optional<int> ReadRow(CPjtInterface& projector, const PageRow& row,
                                                     const ModelData& model,
                                                     std::optional<int> source = {});

/// How a value is sent, beside the value.
struct Sending {
  std::string text{};           ///< The entry's, which some connections are told.
  std::optional<int> source{};  ///< Instead of the present one.
  /// Asked before each of the steps that a setting without a setter needs.
  std::function<bool()> goesOn = [] { return true; };
  std::optional<int> position{};  ///< The chosen entry's, where several stand for the value.
};

/// What became of a value that was to be sent.
enum class Sent : std::uint8_t {
  Nothing,  ///< The row does not take it, or its input source is unknown.
  Refused,
  Accepted,  ///< Also where the setter has no result.
};

/// Sends a value: an entry's of a list, 0 or 1 of a switch. A row that only steps is stepped to it,
/// see `StepTo`.
PROJECTOR_SETTINGS_EXPORT Sent SendRow(CPjtInterface& projector, const PageRow& row,
                                       const ModelData& model, int value, const Sending& how = {});

/// The source that a step goes to, of the one that `AskSource` gave; nothing where no step is made.
PROJECTOR_SETTINGS_EXPORT std::optional<int> SteppedSource(OfSource of, std::optional<int> asked);

/// What came of a step: refused, or the new value; neither where nothing was sent, or where the new
/// value could not be read.
struct Stepped {
  bool refused = false;
  std::optional<int> value{};
};

/// Steps a row inside `bounds`, which are shown values, as `known` is, the one known last.
PROJECTOR_SETTINGS_EXPORT Stepped Step(CPjtInterface& projector, const ValueRow& row, bool upwards,
                                       int source, Range bounds, int known);

/// Makes one step from the value `present`, and gives the value there is then.
using Stepper = std::function<Stepped(bool upwards, int present)>;

/// Steps from `present` to `wanted`, as long as `goesOn`. A step that leads no nearer, or past it,
/// is the last; one that was refused is tried again, since it may have been lost, but not for ever.
PROJECTOR_SETTINGS_EXPORT Sent StepTo(int present, int wanted, const Stepper& step,
                                      const std::function<bool()>& goesOn);

}  // namespace AdvancedControl
