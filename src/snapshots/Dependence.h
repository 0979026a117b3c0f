#pragma once

#include <cstdint>
#include <vector>

#include "Namespace.h"
#include "snapshots/Restoration.h"

// Which settings of a projector depend on which others.

namespace AdvancedControl {

/// The input source selects which values the other settings have, and modes change the meaning of
/// numbers. Each rank is therefore read again when an earlier rank was changed.
enum class Rank : std::uint8_t { Source, Choice, Number };

Rank RankOf(const ModelSetting& setting);

/// Whether both are the same setting, for the same input source.
bool IsSame(const SavedSetting& one, const SavedSetting& other);

/// Settings that were sent, in any order; the model has each of them.
using ToldSettings = std::vector<const RestoredSetting*>;

/// Whether a setting that was sent may still change this one later, whatever is read now.
bool MayStillChange(const RestoredSetting& restored, const ToldSettings& told);
/// The same, or whether one may have changed it since it was last read.
bool MayHaveChanged(const RestoredSetting& restored, const ToldSettings& told);

}  // namespace AdvancedControl
