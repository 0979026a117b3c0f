#include "snapshots/Restoration.h"

#include <algorithm>
#include <iterator>

#include "snapshots/Dependence.h"

namespace AdvancedControl {

namespace {

Outcome InitialOutcome(const ModelSettings& model, const ModelSetting* setting,
                       const SavedSetting& saved) {
  if (setting == nullptr) return Outcome::Unknown;
  if (!setting->Restorable()) return Outcome::NotSettable;
  const bool isAllowed =
      setting->Allows(saved.value) && (!saved.source || model.HasSource(*setting, *saved.source));
  return isAllowed ? Outcome::NotReached : Outcome::NotAllowed;
}

/// False for a setting that the model does not have, because others may depend on such a setting.
bool IsNumber(const RestoredSetting& restored) {
  return restored.setting != nullptr && RankOf(*restored.setting) == Rank::Number;
}

/// The outcome of a change if another value is read back, derived from the commands sent in
/// between. Nothing if the projector received none.
std::optional<Outcome> OutcomeIfDifferent(const CPjtInterface::Tally& before,
                                          const CPjtInterface::Tally& after) {
  if (after.uncertain > before.uncertain) return Outcome::Unconfirmed;
  if (after.pending > before.pending) return Outcome::Pending;
  if (after.busy > before.busy) return Outcome::Busy;
  if (after.unanswered - before.unanswered == after.commands - before.commands) return {};
  return Outcome::Refused;
}

}  // namespace

/// Options of `Send`.
struct Restoration::SendOptions {
  const SettingTexts& texts;
  const Progress& progress;
  const std::function<bool()>& keepUndo;
};

Restoration::Restoration(const Snapshot& snapshot, const ModelSettings& model,
                         CPjtInterface& connection, const Filter& filter)
    : model_(model), connection_(connection) {
  const auto restored = [&model](const SavedSetting& saved, bool isBeforehand) {
    const ModelSetting* const setting = model.Find(saved.key);
    return RestoredSetting{saved, setting, isBeforehand, InitialOutcome(model, setting, saved)};
  };
  for (const SavedSetting& saved : snapshot.beforehand) {
    beforehand_.push_back(restored(saved, true));
  }
  for (const SavedSetting& saved : snapshot.settings) {
    if (filter(saved)) settings_.push_back(restored(saved, false));
  }
}

Restoration::Group Restoration::SettingsWhere(
    const std::function<bool(const RestoredSetting&)>& fit) {
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
  Read(SettingsWhere(
           [](const RestoredSetting& restored) { return restored.outcome == Outcome::NotReached; }),
       progress);
}

// Settings that were read after the last change are not read again.
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
    // A projector that did not answer has not refused anything.
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
  bool isUndoSaved = true;
  const std::function<bool()> keep = [&] { return isUndoSaved = isUndoSaved && keepUndo(); };
  const Progress careful{.goesOn = [&] { return isUndoSaved && progress.goesOn(); },
                         .step = progress.step};
  const SendOptions options{texts, careful, keep};
  SendBeforehand(options);
  if (!HasOpen()) Confirm(SendSettings(options), careful);
  RereadAffected(careful);
  if (turns_ > 0) keep();
}

// Sends each source or mode by itself; consecutive numbers are read and sent together.
void Restoration::SendBeforehand(const SendOptions& options) {
  for (auto next = beforehand_.begin(); next != beforehand_.end() && options.progress.goesOn();) {
    RestoredSetting& front = *next;
    Group group;
    do {
      if (next->outcome == Outcome::NotReached) group.push_back(&*next);
      ++next;
    } while (IsNumber(front) && next != beforehand_.end() && IsNumber(*next) &&
             std::ranges::none_of(group, [next](const RestoredSetting* earlier) {
               return IsSame(earlier->saved, next->saved);
             }));
    Read(group, options.progress);
    Confirm(SendTogether(group, options), options.progress);
    const bool isSo = front.outcome == Outcome::AlreadySo || front.outcome == Outcome::Changed;
    if (HasOpen() || (!IsNumber(front) && !isSo)) return;
  }
}

Restoration::Group Restoration::SendSettings(const SendOptions& options) {
  Group sent;
  const auto send = [&](const Group& group) {
    const Group now = SendTogether(group, options);
    sent.insert(sent.end(), now.begin(), now.end());
  };
  // Choices are sent twice, because some are modes, on which choices sent before may depend.
  for (const Rank rank : {Rank::Source, Rank::Choice, Rank::Choice, Rank::Number}) {
    const Group group = SettingsWhere([rank](const RestoredSetting& restored) {
      const bool wasRead =
          restored.outcome == Outcome::AlreadySo || restored.outcome == Outcome::Differs;
      return wasRead && RankOf(*restored.setting) == rank;
    });
    Read(group, options.progress);
    if (rank == Rank::Number) {
      send(group);
      continue;
    }
    for (RestoredSetting* restored : group) {
      if (restored->outcome != Outcome::Differs) continue;
      Read(Group{restored}, options.progress);
      send({restored});
      if (restored->IsOpen()) Confirm({restored}, options.progress);
      if (restored->IsOpen()) return sent;
    }
  }
  return sent;
}

/// Sends the settings of the group that differ. They must not depend on each other. Returns those
/// that were sent.
Restoration::Group Restoration::SendTogether(const Group& group, const SendOptions& options) {
  Group differing;
  std::ranges::copy_if(group, std::back_inserter(differing), [](const RestoredSetting* restored) {
    return restored->outcome == Outcome::Differs;
  });
  if (differing.empty() || !options.progress.goesOn()) return {};
  for (RestoredSetting* restored : differing) restored->turn = ++turns_;
  options.keepUndo();
  Group sent;
  for (RestoredSetting* restored : differing) {
    if (!options.progress.goesOn()) {
      restored->turn = 0;
      continue;
    }
    const SavedSetting& saved = restored->saved;
    const CPjtInterface::Tally before = connection_.Sent();
    const Sent result = model_.Change(connection_, *restored->setting, saved.value,
                                      {options.texts.Value(*restored->setting, saved.value),
                                       saved.source, options.progress.goesOn});
    options.progress.step();
    const auto otherwise =
        result == Sent::Nothing ? std::nullopt : OutcomeIfDifferent(before, connection_.Sent());
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

// Whatever a setter returns, only the value read back counts. It is read even after an
// interruption, so that the outcomes are correct.
void Restoration::Confirm(const Group& sent, const Progress& progress) {
  Announce(sent);
  for (RestoredSetting* restored : sent) {
    restored->now = model_.Read(connection_, *restored->setting, restored->saved.source);
    if (restored->now) {
      // A step that the projector may still make would change the value again.
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

void Restoration::RereadAffected(const Progress& progress) {
  const auto sent = SentInOrder();
  const Group changed = SettingsWhere([&sent](const RestoredSetting& restored) {
    switch (restored.outcome) {
      case Outcome::Unconfirmed:
      case Outcome::Unknown:
      case Outcome::NotOffered:
      case Outcome::NotSettable:
      case Outcome::NotAllowed:
        return false;
      default:
        return MayHaveChanged(restored, sent);
    }
  });
  Group unread;
  std::ranges::copy_if(changed, std::back_inserter(unread), [&](const RestoredSetting* restored) {
    return restored->turn == 0 && !MayStillChange(*restored, sent);
  });
  Read(unread, progress);
  for (RestoredSetting* restored : changed) {
    if (!MayHaveChanged(*restored, sent)) continue;
    restored->outcome = Outcome::Unconfirmed;
    restored->now.reset();
  }
}

bool Restoration::HasOpen() const {
  return std::ranges::any_of(SentInOrder(), &RestoredSetting::IsOpen);
}

int Restoration::Count(Outcome outcome) const {
  return static_cast<int>(std::ranges::count(beforehand_, outcome, &RestoredSetting::outcome) +
                          std::ranges::count(settings_, outcome, &RestoredSetting::outcome));
}

/// Settings that were sent or are about to be sent, in this order.
std::vector<const RestoredSetting*> Restoration::SentInOrder() const {
  std::vector<const RestoredSetting*> sent;
  for (const auto* list : {&beforehand_, &settings_}) {
    for (const RestoredSetting& restored : *list) {
      if (restored.turn > 0) sent.push_back(&restored);
    }
  }
  std::ranges::sort(sent, {}, &RestoredSetting::turn);
  return sent;
}

Snapshot Restoration::Undo(const std::string& projector, const SettingTexts& texts) const {
  Snapshot snapshot = EmptySnapshot(projector, model_.Model());
  const auto add = [&](std::vector<SavedSetting>& list, const RestoredSetting& restored,
                       int value) {
    list.push_back(
        {restored.saved.key, value, texts.Value(*restored.setting, value), restored.saved.source});
  };
  const SentSettings sent = SentInOrder();
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
