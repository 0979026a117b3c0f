#pragma once

#include <cstdint>
#include <vector>

#include "snapshots/Restoration.h"

// What of a projector's settings depends on which others.

inline namespace AdvancedControl {

/// The input source decides what the projector's other settings belong to, and modes decide what
/// numbers are worth: each rank is read again when one before it was changed.
enum class Rank : std::uint8_t { Source, Choice, Number };

Rank RankOf(const ModelSetting& setting);

/// Whether both are the same setting, for the same input source.
bool IsSame(const SavedSetting& one, const SavedSetting& other);

/// In any order; each of a setting that the model has.
using ToldSettings = std::vector<const RestoredSetting*>;

/// Whether one of those told may still change it, whatever is read.
bool MayStillChange(const RestoredSetting& restored, const ToldSettings& told);
/// The same, or may have changed it since it was read.
bool MayHaveChanged(const RestoredSetting& restored, const ToldSettings& told);

}  // namespace AdvancedControl
