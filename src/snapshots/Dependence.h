#pragma once

#include <cstdint>
#include <vector>

#include "Namespace.h"
#include "snapshots/RestoredSetting.h"

// Which settings of a projector depend on which others. Any thread.

namespace AdvancedControl {

/// The input source selects which values the other settings have, and modes change the meaning of
/// numbers. Each rank is therefore read again when an earlier rank was changed.
enum class Rank : std::uint8_t { Source, Choice, Number };

Rank RankOf(const ModelSetting& setting);

/// False for a setting that the model does not have, because others may depend on such a setting.
bool IsNumber(const RestoredSetting& restored);

/// Whether both are the same setting, for the same input source.
bool IsSame(const SavedSetting& one, const SavedSetting& other);

/// Settings that were sent, in any order. The model has all of them.
using SentSettings = std::vector<const RestoredSetting*>;

/// Whether a setting that was sent may still change this one after it is read.
bool MayStillChange(const RestoredSetting& restored, const SentSettings& sent);
/// Whether a setting that was sent may have changed this one since it was last read, or may still
/// do so.
bool MayHaveChanged(const RestoredSetting& restored, const SentSettings& sent);

}  // namespace AdvancedControl
