#include "snapshots/Dependence.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

/// Whether sending the setting `sent` may change `other`.
bool DependsOn(const RestoredSetting& other, const RestoredSetting& sent) {
  if (&other == &sent) return false;
  if (IsSame(other.saved, sent.saved)) return true;
  const auto& own = other.saved.source;
  switch (RankOf(*sent.setting)) {
    case Rank::Source:
      return !own;
    case Rank::Choice:
      return RankOf(*other.setting) != Rank::Source;
    case Rank::Number:
      break;
  }
  // Two settings with the same caption may be one setting on two pages. They are not if they belong
  // to different sources, or one is horizontal and the other vertical.
  const bool isElsewhere = own && sent.saved.source && own != sent.saved.source;
  const bool isAcross = other.setting->key.ends_with("-h") != sent.setting->key.ends_with("-h");
  return !isElsewhere && !isAcross && other.setting->caption == sent.setting->caption;
}

}  // namespace

Rank RankOf(const ModelSetting& setting) {
  if (setting.SelectsInput()) return Rank::Source;
  return setting.kind == ModelSetting::Kind::Choice ? Rank::Choice : Rank::Number;
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
