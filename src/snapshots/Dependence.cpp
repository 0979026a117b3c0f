#include "snapshots/Dependence.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

/// Whether telling one may change the other too.
bool MayFollow(const RestoredSetting& other, const RestoredSetting& told) {
  if (&other == &told) return false;
  if (IsSame(other.saved, told.saved)) return true;
  const auto& own = other.saved.source;
  switch (RankOf(*told.setting)) {
    case Rank::Source:
      return !own;
    case Rank::Choice:
      return RankOf(*other.setting) != Rank::Source;
    case Rank::Number:
      break;
  }
  // Two settings of one caption may be the same thing on two pages, but not for different sources,
  // nor if one is for the horizontal and one for the vertical direction.
  const bool isElsewhere = own && told.saved.source && own != told.saved.source;
  const bool isAcross = other.setting->key.ends_with("-h") != told.setting->key.ends_with("-h");
  return !isElsewhere && !isAcross && other.setting->caption == told.setting->caption;
}

}  // namespace

Rank RankOf(const ModelSetting& setting) {
  if (setting.SelectsInput()) return Rank::Source;
  return setting.kind == ModelSetting::Kind::Choice ? Rank::Choice : Rank::Number;
}

bool IsSame(const SavedSetting& one, const SavedSetting& other) {
  return one.key == other.key && one.source == other.source;
}

bool MayStillChange(const RestoredSetting& restored, const ToldSettings& told) {
  return std::ranges::any_of(told, [&restored](const RestoredSetting* other) {
    return other->IsOpen() && MayFollow(restored, *other);
  });
}

bool MayHaveChanged(const RestoredSetting& restored, const ToldSettings& told) {
  const bool isOutdated = std::ranges::any_of(told, [&restored](const RestoredSetting* other) {
    return other->turn > restored.asOf && MayFollow(restored, *other);
  });
  return isOutdated || MayStillChange(restored, told);
}

}  // namespace AdvancedControl
