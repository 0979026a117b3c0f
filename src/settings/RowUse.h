#pragma once

#include <optional>

#include "ProjectorSettingsExport.h"
#include "settings/Rows.h"

inline namespace AdvancedControl {

// Rows in use: what a row's data makes of the projector. Values are device values.

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

/// Sends a value: an entry's of a list, 0 or 1 of a switch. False when it was refused, or the row
/// does not take it; a setter without a result never refuses. `source` as above.
PROJECTOR_SETTINGS_EXPORT bool SendRow(CPjtInterface& projector, const PageRow& row,
                                       const ModelData& model, int value,
                                       std::optional<int> source = {});

/// What came of a step: refused, or the new value; neither where nothing was sent, or where the new
/// value could not be read.
struct Stepped {
  bool refused = false;
  std::optional<int> value{};
};

/// Steps a row inside `bounds`, which are shown values, as `known` is, the one known last.
PROJECTOR_SETTINGS_EXPORT Stepped Step(CPjtInterface& projector, const ValueRow& row, bool upwards,
                                       int source, Range bounds, int known);
/// The same from the value that the projector has.
PROJECTOR_SETTINGS_EXPORT Stepped Step(CPjtInterface& projector, const ValueRow& row,
                                       const ModelData& model, bool upwards);

}  // namespace AdvancedControl
