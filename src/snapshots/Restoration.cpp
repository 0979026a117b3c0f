#include "snapshots/Restoration.h"

#include <algorithm>
#include <iterator>
#include <utility>

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
  if (!HasOpen()) {
    Group sent = SendSettings(options);
    const SentSettings all = SentInOrder();
    std::erase_if(sent, [&all](const RestoredSetting* restored) {
      return restored->outcome == Outcome::Changed && !MayHaveChanged(*restored, all);
    });
    Confirm(sent, careful);
  }
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
    const auto ofRank = [this, rank](bool wereSent) {
      return SettingsWhere([rank, wereSent](const RestoredSetting& restored) {
        const bool wasRead =
            restored.outcome == Outcome::AlreadySo || restored.outcome == Outcome::Differs;
        return (wereSent ? restored.turn > 0 : wasRead) && RankOf(*restored.setting) == rank;
      });
    };
    Group group = ofRank(false);
    Read(group, options.progress);
    if (rank == Rank::Number) {
      send(group);
      continue;
    }
    Group again = ofRank(true);
    ConfirmEarlier(again, options.progress);
    group.insert(group.end(), again.begin(), again.end());
    std::ranges::sort(group);  // pointers, in the snapshot's order
    for (RestoredSetting* restored : group) {
      if (restored->turn > 0) {
        SendAgain(*restored, options);
      } else if (restored->outcome == Outcome::Differs) {
        Read(Group{restored}, options.progress);
        send({restored});
      }
      if (restored->IsOpen()) Confirm({restored}, options.progress);
      if (restored->IsOpen()) return sent;
    }
  }
  return sent;
}

/// Reads back those of the group that were not sent last, as a later one may have changed them.
void Restoration::ConfirmEarlier(Group group, const Progress& progress) {
  std::erase_if(group, [this](const RestoredSetting* restored) {
    return restored->turn == turns_ || restored->asOf == turns_;
  });
  if (!group.empty() && progress.goesOn()) Confirm(group, progress);
}

/// Sends a choice for the second time if a later one has changed it.
void Restoration::SendAgain(RestoredSetting& restored, const SendOptions& options) {
  ConfirmEarlier({&restored}, options.progress);
  if (!restored.now || restored.outcome == Outcome::Changed) return;
  const RestoredSetting first = restored;
  sentFirst_.push_back(first);
  sentFirst_.back().now.reset();  // `Undo` has what it is in the end from `restored`
  restored.before = std::exchange(restored.now, std::nullopt);
  restored.outcome = Outcome::Differs;
  if (!SendTogether({&restored}, options).empty()) return;
  restored = first;
  sentFirst_.pop_back();
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

}  // namespace AdvancedControl
