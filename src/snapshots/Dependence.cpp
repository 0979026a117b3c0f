#include "snapshots/Dependence.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

/// Whether sending the setting `sent` may change `other`.
bool DependsOn(const RestoredSetting& other, const RestoredSetting& sent) {
  if (&other == &sent) return false;
  const Rank rank = RankOf(*sent.setting);
  if (rank == Rank::Source) return !other.saved.source;
  if (rank == Rank::Choice) return RankOf(*other.setting) != Rank::Source;
  return IsSame(other.saved, sent.saved);
}

}  // namespace

Rank RankOf(const ModelSetting& setting) {
  if (setting.SelectsInput()) return Rank::Source;
  return setting.kind == ModelSetting::Kind::Choice ? Rank::Choice : Rank::Number;
}

bool IsNumber(const RestoredSetting& restored) {
  return restored.setting != nullptr && RankOf(*restored.setting) == Rank::Number;
}

bool IsSame(const SavedSetting& one, const SavedSetting& other) {
  return one.key == other.key && one.source == other.source;
}

bool MayStillChange(const RestoredSetting& restored, const SentSettings& sent) {
  return std::ranges::any_of(sent, [&restored](const RestoredSetting* other) {
    return other->IsOpen() && DependsOn(restored, *other);
  });
}

bool MayHaveChanged(const RestoredSetting& restored, const SentSettings& sent) {
  const bool isOutdated = std::ranges::any_of(sent, [&restored](const RestoredSetting* other) {
    return other->turn > restored.asOf && DependsOn(restored, *other);
  });
  return isOutdated || MayStillChange(restored, sent);
}

}  // namespace AdvancedControl
