#include "snapshots/Restoration.h"

#include <algorithm>

namespace {

/// The input source decides what the projector's other settings belong to, and modes decide what
/// numbers are worth: each rank is read again when one before it was changed.
enum class Rank : std::uint8_t { Source, Choice, Number };

Rank RankOf(const ModelSetting& setting) {
  if (setting.SelectsInput()) return Rank::Source;
  return setting.kind == ModelSetting::Kind::Choice ? Rank::Choice : Rank::Number;
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
    if (!filter(saved)) continue;
    const ModelSetting* const setting = model.Find(saved.key);
    settings_.push_back({saved, setting, Judge(setting, saved.value)});
  }
}

Restoration::Group Restoration::Those(const std::function<bool(const RestoredSetting&)>& fit) {
  Group group;
  for (RestoredSetting& restored : settings_) {
    if (fit(restored)) group.push_back(&restored);
  }
  return group;
}

void Restoration::Announce(const Group& group) {
  std::vector<SourcedSetting> reads;
  reads.reserve(group.size());
  for (const RestoredSetting* restored : group) {
    reads.push_back({restored->setting, restored->saved.source});
  }
  model_.Announce(connection_, reads);
}

void Restoration::Read(const Progress& progress) {
  Read(Those(
           [](const RestoredSetting& restored) { return restored.outcome == Outcome::NotReached; }),
       progress);
}

void Restoration::Read(const Group& group, const Progress& progress) {
  Announce(group);
  for (RestoredSetting* restored : group) {
    if (progress.goesOn()) {
      Read(*restored, progress);
    } else if (restored->outcome == Outcome::AlreadySo) {
      restored->outcome = Outcome::NotReached;  // that was before others were sent
    }
  }
}

void Restoration::Read(RestoredSetting& restored, const Progress& progress) {
  const int unanswered = connection_.Sent().unanswered;
  restored.before = model_.Read(connection_, *restored.setting, restored.saved.source);
  if (!restored.first) restored.first = restored.before;
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

void Restoration::Send(const SettingTexts& texts, const Progress& progress,
                       const std::function<bool()>& keepUndo) {
  Group sent;
  for (const Rank rank : {Rank::Source, Rank::Choice, Rank::Number}) {
    const Group group = Those([rank](const RestoredSetting& restored) {
      const bool wasRead =
          restored.outcome == Outcome::AlreadySo || restored.outcome == Outcome::Differs;
      return wasRead && RankOf(*restored.setting) == rank;
    });
    if (!sent.empty()) Read(group, progress);
    const bool moreDiffers = std::ranges::any_of(group, [](const RestoredSetting* restored) {
      return restored->outcome == Outcome::Differs && restored->first == restored->saved.value;
    });
    if (moreDiffers && progress.goesOn() && !keepUndo()) break;
    for (RestoredSetting* restored : group) {
      if (restored->outcome != Outcome::Differs || !progress.goesOn()) continue;
      Send(*restored, texts, progress);
      sent.push_back(restored);
    }
  }
  Confirm(sent, progress);
}

void Restoration::Send(RestoredSetting& restored, const SettingTexts& texts,
                       const Progress& progress) {
  const int value = restored.saved.value;
  model_.Change(connection_, *restored.setting, value,
                {texts.Value(*restored.setting, value), restored.saved.source, progress.goesOn});
  restored.outcome = Outcome::Unconfirmed;
  progress.step();
}

// Whatever a setter answers, the value read afterwards is what the projector has. Also after an
// interruption, so that what is told is true.
void Restoration::Confirm(const Group& sent, const Progress& progress) {
  Announce(sent);
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
    if (!restored.first) continue;
    const bool isUntouched =
        restored.outcome == Outcome::AlreadySo || restored.outcome == Outcome::NotReached;
    if (isUntouched && restored.first == restored.saved.value) continue;
    snapshot.settings.push_back({restored.saved.key, *restored.first,
                                 texts.Value(*restored.setting, *restored.first),
                                 restored.saved.source});
  }
  return snapshot;
}
