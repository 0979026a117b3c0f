#include "snapshots/Restoration.h"

#include <algorithm>

#include "device/CommandCode.h"

namespace {

bool IsInputSource(const ModelSetting& setting) {
  const auto* list = std::get_if<ListRow>(setting.row);
  return list != nullptr && list->send && list->send->code == CommandCode::InputSource;
}

/// The input source decides what the projector's other settings belong to, and modes decide what
/// numbers are worth.
int Rank(const ModelSetting& setting) {
  if (IsInputSource(setting)) return 0;
  return setting.kind == ModelSetting::Kind::Choice ? 1 : 2;
}

Outcome Judge(const ModelSetting* setting, int value) {
  if (setting == nullptr) return Outcome::Unknown;
  if (!setting->Restorable()) return Outcome::NotSettable;
  return setting->Allows(value) ? Outcome::NotReached : Outcome::NotAllowed;
}

}  // namespace

Restoration::Restoration(const Snapshot& snapshot, const ModelSettings& model,
                         CPjtInterface& connection, const Filter& filter)
    : model_(model), connection_(connection) {
  for (const SavedSetting& saved : snapshot.settings) {
    if (!filter(saved.key)) continue;
    const ModelSetting* const setting = model.Find(saved.key);
    settings_.push_back({saved, setting, Judge(setting, saved.value)});
  }
}

void Restoration::Read(const Progress& progress) {
  std::vector<const ModelSetting*> asked;
  for (const RestoredSetting& restored : settings_) {
    if (restored.outcome == Outcome::NotReached) asked.push_back(restored.setting);
  }
  model_.Announce(connection_, asked);
  for (RestoredSetting& restored : settings_) {
    if (restored.outcome == Outcome::NotReached && progress.goesOn()) Read(restored, progress);
  }
}

void Restoration::Read(RestoredSetting& restored, const Progress& progress) {
  const int unanswered = connection_.Sent().unanswered;
  restored.before = model_.Read(connection_, *restored.setting, restored.saved.source);
  if (!restored.before) {
    // A projector that is gone has refused nothing.
    const bool isGone = connection_.Sent().unanswered > unanswered || !progress.goesOn();
    restored.outcome = isGone ? Outcome::NotReached : Outcome::Refused;
  } else {
    const bool same = *restored.before == restored.saved.value;
    restored.outcome = same ? Outcome::AlreadySo : Outcome::Differs;
  }
  progress.step();
}

void Restoration::Send(const SettingTexts& texts, const Progress& progress) {
  std::vector<RestoredSetting*> inOrder;
  for (RestoredSetting& restored : settings_) {
    if (restored.setting != nullptr) inOrder.push_back(&restored);
  }
  std::ranges::stable_sort(
      inOrder, {}, [](const RestoredSetting* restored) { return Rank(*restored->setting); });
  std::vector<RestoredSetting*> sent;
  bool sourceChanged = false;
  for (RestoredSetting* restored : inOrder) {
    const bool wasRead =
        restored->outcome == Outcome::AlreadySo || restored->outcome == Outcome::Differs;
    if (!wasRead) continue;
    if (!progress.goesOn()) break;
    // Another source may have another value.
    if (sourceChanged) Read(*restored, progress);
    if (restored->outcome != Outcome::Differs) continue;
    const int value = restored->saved.value;
    model_.Change(
        connection_, *restored->setting, value,
        {texts.Value(*restored->setting, value), restored->saved.source, progress.goesOn});
    restored->outcome = Outcome::Unconfirmed;
    sent.push_back(restored);
    sourceChanged = sourceChanged || IsInputSource(*restored->setting);
    progress.step();
  }
  Confirm(sent, progress);
}

// Whatever a setter answers, the value read afterwards is what the projector has. Also after an
// interruption, so that what is told is true.
void Restoration::Confirm(const std::vector<RestoredSetting*>& sent, const Progress& progress) {
  std::vector<const ModelSetting*> asked;
  asked.reserve(sent.size());
  for (const RestoredSetting* restored : sent) asked.push_back(restored->setting);
  model_.Announce(connection_, asked);
  for (RestoredSetting* restored : sent) {
    restored->now = model_.Read(connection_, *restored->setting, restored->saved.source);
    if (restored->now) {
      const bool done = *restored->now == restored->saved.value;
      restored->outcome = done ? Outcome::Changed : Outcome::Refused;
    }
    progress.step();
  }
}

int Restoration::Count(Outcome outcome) const {
  return static_cast<int>(std::ranges::count(settings_, outcome, &RestoredSetting::outcome));
}

Snapshot Restoration::Undo(const std::string& projector, const SettingTexts& texts) const {
  Snapshot snapshot = EmptySnapshot(projector, model_.Model());
  for (const RestoredSetting& restored : settings_) {
    if (restored.outcome != Outcome::Differs) continue;
    snapshot.settings.push_back({restored.saved.key, *restored.before,
                                 texts.Value(*restored.setting, *restored.before),
                                 restored.saved.source});
  }
  return snapshot;
}
