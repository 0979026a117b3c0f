#include <algorithm>
#include <iterator>

#include "snapshots/Dependence.h"
#include "snapshots/Restoration.h"

// What undoes a restoration.

namespace AdvancedControl {

Snapshot Restoration::Undo(const std::string& projector, const SettingTexts& texts) const {
  Snapshot snapshot = EmptySnapshot(projector, model_.Model());
  const auto add = [&](std::vector<SavedSetting>& list, const RestoredSetting& restored,
                       int value) {
    list.push_back(
        {restored.saved.key, value, texts.Value(*restored.setting, value), restored.saved.source});
  };
  SentSettings sent = SentInOrder();
  for (const RestoredSetting& restored : sentFirst_) sent.push_back(&restored);
  std::ranges::sort(sent, {}, &RestoredSetting::turn);
  for (const RestoredSetting& restored : settings_) {
    if (!restored.first) continue;
    const bool isUntouched =
        restored.outcome == Outcome::AlreadySo || restored.outcome == Outcome::NotReached;
    const bool isSo = restored.first == restored.saved.value;
    if (isUntouched && isSo && !MayHaveChanged(restored, sent)) continue;
    add(snapshot.settings, restored, *restored.first);
  }
  const auto first = std::ranges::find_if_not(
      sent, [](const RestoredSetting* restored) { return IsNumber(*restored); });
  const bool isAllAtFirst = first == sent.end() || std::next(first) == sent.end();
  if (isAllAtFirst && beforehand_.empty()) return snapshot;
  // The user may choose another source or mode before undoing. Under modes that were set later, the
  // value of a choice is known only if it was read back.
  for (const RestoredSetting* restored : sent) {
    if (restored->isBeforehand || IsNumber(*restored) || restored->IsOpen()) continue;
    if (restored->now || restored->setting->SelectsInput()) {
      add(snapshot.beforehand, *restored, restored->now.value_or(restored->saved.value));
    }
  }
  for (auto last = sent.rbegin(); last != sent.rend(); ++last) {
    add(snapshot.beforehand, **last, *(*last)->before);
  }
  return snapshot;
}

// What the second one replaced may belong to a source or mode that the first one had set. It is
// therefore restored before the values from before the first.
Snapshot UndoOfBoth(const Snapshot& earlier, const Snapshot& later, const ModelSettings& model) {
  std::vector<SavedSetting> settings = later.settings;
  std::ranges::stable_sort(
      settings, {}, [&model](const SavedSetting& saved) { return RankOf(*model.Find(saved.key)); });
  Snapshot both = earlier;
  both.beforehand = later.beforehand;
  for (const auto& list : {settings, earlier.beforehand})
    both.beforehand.insert(both.beforehand.end(), list.begin(), list.end());
  return both;
}

}  // namespace AdvancedControl
