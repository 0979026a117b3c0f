#include "snapshots/Restoration.h"

#include <algorithm>
#include <iterator>

#include "snapshots/Dependence.h"

namespace AdvancedControl {

namespace {

Outcome Judge(const ModelSettings& model, const ModelSetting* setting, const SavedSetting& saved) {
  if (setting == nullptr) return Outcome::Unknown;
  if (!setting->Restorable()) return Outcome::NotSettable;
  const bool isAllowed =
      setting->Allows(saved.value) && (!saved.source || model.HasSource(*setting, *saved.source));
  return isAllowed ? Outcome::NotReached : Outcome::NotAllowed;
}

/// What of the others depends on it is not known for one that the model does not have.
bool IsNumber(const RestoredSetting& restored) {
  return restored.setting != nullptr && RankOf(*restored.setting) == Rank::Number;
}

/// What telling has come to if it is read back different, as the commands in between went. Nothing
/// where the projector was told nothing.
std::optional<Outcome> Otherwise(const CPjtInterface::Tally& before,
                                 const CPjtInterface::Tally& after) {
  if (after.uncertain > before.uncertain) return Outcome::Unconfirmed;
  if (after.pending > before.pending) return Outcome::Pending;
  if (after.busy > before.busy) return Outcome::Busy;
  const int unanswered = after.unanswered - before.unanswered;
  if (unanswered > 0 && unanswered == after.commands - before.commands) return {};
  return Outcome::Refused;
}

}  // namespace

/// How everything is sent.
struct Restoration::Way {
  const SettingTexts& texts;
  const Progress& progress;
  const std::function<bool()>& keepUndo;
};

Restoration::Restoration(const Snapshot& snapshot, const ModelSettings& model,
                         CPjtInterface& connection, const Filter& filter)
    : model_(model), connection_(connection) {
  const auto restored = [&model](const SavedSetting& saved, bool isBeforehand) {
    const ModelSetting* const setting = model.Find(saved.key);
    return RestoredSetting{saved, setting, isBeforehand, Judge(model, setting, saved)};
  };
  for (const SavedSetting& saved : snapshot.beforehand) {
    beforehand_.push_back(restored(saved, true));
  }
  for (const SavedSetting& saved : snapshot.settings) {
    if (filter(saved)) settings_.push_back(restored(saved, false));
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

// What was read since the last was sent is not read again.
void Restoration::Read(const Group& group, const Progress& progress) {
  Group stale;
  std::ranges::copy_if(group, std::back_inserter(stale), [this](const RestoredSetting* restored) {
    return restored->asOf != turns_;
  });
  Announce(stale);
  for (RestoredSetting* restored : stale) {
    if (progress.goesOn()) Read(*restored, progress);
  }
}

void Restoration::Read(RestoredSetting& restored, const Progress& progress) {
  const CPjtInterface::Tally sent = connection_.Sent();
  restored.before = model_.Read(connection_, *restored.setting, restored.saved.source);
  if (!restored.first) restored.first = restored.before;
  if (!restored.before) {
    // A projector that is gone has refused nothing.
    const CPjtInterface::Tally now = connection_.Sent();
    const bool isGone = now.unanswered > sent.unanswered || !progress.goesOn();
    const Outcome refused = now.busy > sent.busy ? Outcome::Busy : Outcome::Refused;
    const bool isOffered = now.notOffered == sent.notOffered;
    restored.outcome = isGone ? Outcome::NotReached : isOffered ? refused : Outcome::NotOffered;
    if (isGone) return progress.step();
  } else {
    const bool same = *restored.before == restored.saved.value;
    restored.outcome = same ? Outcome::AlreadySo : Outcome::Differs;
  }
  restored.asOf = turns_;
  progress.step();
}

void Restoration::Send(const SettingTexts& texts, const Progress& progress,
                       const std::function<bool()>& keepUndo) {
  bool isKept = true;
  const std::function<bool()> keep = [&] { return isKept = isKept && keepUndo(); };
  const Progress careful{.goesOn = [&] { return isKept && progress.goesOn(); },
                         .step = progress.step};
  const Way way{texts, careful, keep};
  SendBeforehand(way);
  if (!HasOpen()) Confirm(SendSettings(way), careful);
  Settle(careful);
  if (turns_ > 0) keep();
}

// A source or mode is alone; numbers that follow each other are read and sent together.
void Restoration::SendBeforehand(const Way& way) {
  for (auto next = beforehand_.begin(); next != beforehand_.end() && way.progress.goesOn();) {
    RestoredSetting& front = *next;
    Group group;
    do {
      if (next->outcome == Outcome::NotReached) group.push_back(&*next);
      ++next;
    } while (IsNumber(front) && next != beforehand_.end() && IsNumber(*next) &&
             std::ranges::none_of(group, [next](const RestoredSetting* earlier) {
               return IsSame(earlier->saved, next->saved);
             }));
    Read(group, way.progress);
    Confirm(SendTogether(group, way), way.progress);
    const bool isSo = front.outcome == Outcome::AlreadySo || front.outcome == Outcome::Changed;
    if (HasOpen() || (!IsNumber(front) && !isSo)) return;
  }
}

Restoration::Group Restoration::SendSettings(const Way& way) {
  Group sent;
  const auto send = [&](const Group& group) {
    const Group now = SendTogether(group, way);
    sent.insert(sent.end(), now.begin(), now.end());
  };
  // Of the choices some may be modes that others depend on, which were so already.
  for (const Rank rank : {Rank::Source, Rank::Choice, Rank::Choice, Rank::Number}) {
    const Group group = Those([rank](const RestoredSetting& restored) {
      const bool wasRead =
          restored.outcome == Outcome::AlreadySo || restored.outcome == Outcome::Differs;
      return wasRead && RankOf(*restored.setting) == rank;
    });
    Read(group, way.progress);
    if (rank == Rank::Number) {
      send(group);
      continue;
    }
    for (RestoredSetting* restored : group) {
      if (restored->outcome != Outcome::Differs) continue;
      Read(Group{restored}, way.progress);
      send({restored});
      if (restored->IsOpen()) Confirm({restored}, way.progress);
      if (restored->IsOpen()) return sent;
    }
  }
  return sent;
}

/// Sends what differs of settings that do not depend on each other, and returns what was sent.
Restoration::Group Restoration::SendTogether(const Group& group, const Way& way) {
  Group differing;
  std::ranges::copy_if(group, std::back_inserter(differing), [](const RestoredSetting* restored) {
    return restored->outcome == Outcome::Differs;
  });
  if (differing.empty() || !way.progress.goesOn()) return {};
  for (RestoredSetting* restored : differing) restored->turn = ++turns_;
  way.keepUndo();
  Group sent;
  for (RestoredSetting* restored : differing) {
    if (!way.progress.goesOn()) {
      restored->turn = 0;
      continue;
    }
    const SavedSetting& saved = restored->saved;
    const CPjtInterface::Tally before = connection_.Sent();
    const Sent result = model_.Change(
        connection_, *restored->setting, saved.value,
        {way.texts.Value(*restored->setting, saved.value), saved.source, way.progress.goesOn});
    way.progress.step();
    const auto otherwise =
        result == Sent::Nothing ? std::nullopt : Otherwise(before, connection_.Sent());
    if (!otherwise) {
      restored->turn = 0;
      continue;
    }
    restored->otherwise = *otherwise;
    restored->outcome = Outcome::Unconfirmed;
    sent.push_back(restored);
  }
  return sent;
}

// Whatever a setter answers, the value read afterwards is what the projector has. Also after an
// interruption, so that what is told is true.
void Restoration::Confirm(const Group& sent, const Progress& progress) {
  Announce(sent);
  for (RestoredSetting* restored : sent) {
    restored->now = model_.Read(connection_, *restored->setting, restored->saved.source);
    if (restored->now) {
      // A step that may still be made leads away from there.
      const bool isStepping = restored->IsOpen() && restored->setting->IsStepped();
      const bool done = *restored->now == restored->saved.value && !isStepping;
      if (done) restored->otherwise = Outcome::Refused;
      restored->outcome = done ? Outcome::Changed : restored->otherwise;
      restored->asOf = turns_;
    }
    if (restored->outcome == Outcome::Unconfirmed) restored->now.reset();
    progress.step();
  }
}

void Restoration::Settle(const Progress& progress) {
  const auto told = Told();
  const Group changed = Those([&told](const RestoredSetting& restored) {
    switch (restored.outcome) {
      case Outcome::Unconfirmed:
      case Outcome::Unknown:
      case Outcome::NotOffered:
      case Outcome::NotSettable:
      case Outcome::NotAllowed:
        return false;
      default:
        return MayHaveChanged(restored, told);
    }
  });
  Group unread;
  std::ranges::copy_if(changed, std::back_inserter(unread), [&](const RestoredSetting* restored) {
    return restored->turn == 0 && !MayStillChange(*restored, told);
  });
  Read(unread, progress);
  for (RestoredSetting* restored : changed) {
    if (!MayHaveChanged(*restored, told)) continue;
    restored->outcome = Outcome::Unconfirmed;
    restored->now.reset();
  }
}

bool Restoration::HasOpen() const { return std::ranges::any_of(Told(), &RestoredSetting::IsOpen); }

int Restoration::Count(Outcome outcome) const {
  return static_cast<int>(std::ranges::count(beforehand_, outcome, &RestoredSetting::outcome) +
                          std::ranges::count(settings_, outcome, &RestoredSetting::outcome));
}

/// What was told, or is just going to be, in that order.
std::vector<const RestoredSetting*> Restoration::Told() const {
  std::vector<const RestoredSetting*> told;
  for (const auto* list : {&beforehand_, &settings_}) {
    for (const RestoredSetting& restored : *list) {
      if (restored.turn > 0) told.push_back(&restored);
    }
  }
  std::ranges::sort(told, {}, &RestoredSetting::turn);
  return told;
}

Snapshot Restoration::Undo(const std::string& projector, const SettingTexts& texts) const {
  Snapshot snapshot = EmptySnapshot(projector, model_.Model());
  const auto add = [&](std::vector<SavedSetting>& list, const RestoredSetting& restored,
                       int value) {
    list.push_back(
        {restored.saved.key, value, texts.Value(*restored.setting, value), restored.saved.source});
  };
  const ToldSettings told = Told();
  for (const RestoredSetting& restored : settings_) {
    if (!restored.first) continue;
    const bool isUntouched =
        restored.outcome == Outcome::AlreadySo || restored.outcome == Outcome::NotReached;
    const bool isSo = restored.first == restored.saved.value;
    if (isUntouched && isSo && !MayHaveChanged(restored, told)) continue;
    add(snapshot.settings, restored, *restored.first);
  }
  const auto first = std::ranges::find_if_not(
      told, [](const RestoredSetting* restored) { return IsNumber(*restored); });
  const bool isAllAtFirst = first == told.end() || std::next(first) == told.end();
  if (isAllAtFirst && beforehand_.empty()) return snapshot;
  // Somebody may choose another source or mode meanwhile. What a choice is under the modes that
  // were set after it is known only once it was read back.
  for (const RestoredSetting* restored : told) {
    if (restored->isBeforehand || IsNumber(*restored) || restored->IsOpen()) continue;
    if (restored->now || restored->setting->SelectsInput()) {
      add(snapshot.beforehand, *restored, restored->now.value_or(restored->saved.value));
    }
  }
  for (auto last = told.rbegin(); last != told.rend(); ++last) {
    add(snapshot.beforehand, **last, *(*last)->before);
  }
  return snapshot;
}

}  // namespace AdvancedControl
