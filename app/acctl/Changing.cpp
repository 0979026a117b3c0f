// The commands that change settings one by one.

#include <cstdlib>
#include <map>

#include "app/acctl/Reading.h"
#include "app/acctl/Uses.h"

namespace {

using Kind = ModelSetting::Kind;

struct Change {
  const ModelSetting* setting;
  TypedValue typed;
  std::string word;
  std::optional<int> aim{};  ///< Of the first one, once it is known; others may drag theirs along.
};

/// What became of a change, for scripts and, behind the key, for people; no text where all is well.
struct Made {
  const char* outcome;
  std::string text{};
  int code = ExitCode::Done;
};

/// Whether only the projector knows how far it can be stepped.
bool IsUnbounded(const Target& target, const ModelSetting& setting) {
  return target.OnlySteps(setting) || (setting.IsStepped() && !setting.range);
}

/// The changes that the words ask for; anything wrong is complained of. Those that depend on what
/// the projector will tell are left out.
std::vector<Change> ChangesOf(const Work& work, const Target& target, Report& report) {
  std::vector<Change> changes;
  const auto& words = work.arguments.words;
  for (std::size_t i = 0; i + 1 < words.size(); i += 2) {
    const std::string& key = words[i];
    const std::string& word = words[i + 1];
    const auto complain = [&](const std::string& what) {
      report.Complain(std::string(key).append(": ").append(what), ExitCode::WrongUse);
    };
    const ModelSetting* const setting = target.settings.Find(key);
    if (setting == nullptr) {
      complain("this model has no such setting");
    } else if (!target.Carries(kSet, *setting)) {
      complain(kNotInPjLink);
    } else if (target.LacksEntries(*setting)) {
      continue;
    } else if (!kSet.isPossible(*setting)) {
      complain(kSet.refusal);
    } else if (const auto typed = work.texts.Parse(*setting, word);
               !typed || (!typed->relative && !setting->Allows(typed->amount))) {
      complain("'" + word + "' is not one of: " + work.texts.Values(*setting));
    } else if (target.OnlySteps(*setting) && !typed->relative) {
      complain("'" + word + "' is no step like +1 or -1, and PJLink has nothing else for it");
    } else if (typed->relative && IsUnbounded(target, *setting) &&
               std::abs(typed->amount) > kMostSteps) {
      complain("'" + word + "' is more than " + std::to_string(kMostSteps) + " steps");
    } else {
      changes.push_back({setting, *typed, word});
    }
  }
  return changes;
}

/// The value that a change comes to from `present`, which is asked where it is not known; without
/// one it is complained of. `wrong` is the exit code for a value that cannot be reached.
std::optional<int> Aim(const Change& change, const Work& work, ProjectorAccess& projector,
                       std::optional<int> source, std::optional<int> present, int wrong,
                       Report& report) {
  const ModelSetting& setting = *change.setting;
  const bool isUnbounded = IsUnbounded(TargetOf(projector), setting);
  if ((change.typed.relative || isUnbounded) && !present) {
    present = projector.Settings().Read(projector.Connection(), setting, source);
    if (!present) {
      ComplainOf(setting, projector, kNotReadable, report);
      return {};
    }
  }
  const auto value = Resolve(setting, change.typed, present);
  if (!value) {
    report.Complain(std::string(setting.key) + ": '" + change.word + "' from " +
                        work.texts.Value(setting, *present) +
                        " is not one of: " + work.texts.Values(setting),
                    wrong);
  } else if (isUnbounded && std::abs(*value - *present) > kMostSteps) {
    report.Complain(std::string(setting.key) + ": '" + change.word + "' is more than " +
                        std::to_string(kMostSteps) + " steps from " +
                        work.texts.Value(setting, *present),
                    wrong);
    return {};
  }
  return value;
}

/// Complains of values that cannot be reached from the present ones. What a setting kept for each
/// input source has behind a change of the source is only known then.
void CheckSteps(std::vector<Change>& changes, const Work& work, ProjectorAccess& projector,
                Report& report) {
  const Progress progress = ProgressOf(work, projector);
  std::map<const ModelSetting*, std::optional<int>> expected;
  bool ofOtherSource = false;
  for (Change& change : changes) {
    const ModelSetting& setting = *change.setting;
    ofOtherSource = ofOtherSource || setting.SelectsInput();
    if (ofOtherSource && setting.IsPerSource()) continue;
    if (TargetOf(projector).OnlySteps(setting)) continue;  // to where nobody knows
    std::optional<int>& value = expected[&setting];
    if (!change.typed.relative && !IsUnbounded(TargetOf(projector), setting)) {
      value = change.typed.amount;
    } else if (progress.goesOn()) {
      const auto source = projector.Settings().PresentSource(projector.Connection(), setting);
      value = Aim(change, work, projector, source, value, ExitCode::WrongUse, report);
    }
    if (&change == &changes.front()) change.aim = value;
  }
}

/// The changes, once it is known that all of them can be sent; else what stands against it.
std::vector<Change> CheckedChanges(const Work& work, ProjectorAccess& projector, Report& report) {
  const Target target = TargetOf(projector);
  std::vector<Change> changes = ChangesOf(work, target, report);
  for (std::size_t i = 0; i < work.arguments.words.size(); i += 2) {
    const ModelSetting* const setting = target.settings.Find(work.arguments.words[i]);
    if (setting == nullptr || !target.LacksEntries(*setting)) continue;
    report.Complain(std::string(setting->key) + ": " + kInputsNotRead, ExitCode::NoAnswer);
  }
  if (report.code == ExitCode::Done) CheckSteps(changes, work, projector, report);
  return changes;
}

/// A projector that is on its way to a power state does what it was told.
bool IsSo(const ModelSetting& setting, int value, int now) {
  return setting.kind == Kind::State ? (now == 1) == (value == 1) : now == value;
}

/// What became of a change that the projector was told between `before` and `after`, and of what it
/// has now.
Made Judge(const Work& work, ProjectorAccess& projector, const ModelSetting& setting, int value,
           std::optional<int> now, const CPjtInterface::Tally& before, bool accepted,
           const CPjtInterface::Tally& after) {
  const std::string isNow = now ? ", it is " + work.texts.Value(setting, *now) : std::string();
  if (now && IsSo(setting, value, *now)) return {"done"};
  if (work.isInterrupted() && setting.IsStepped() && now) {
    return {"stopped", "stopped at " + work.texts.Value(setting, *now)};
  }
  const bool isAnswered = projector.Channel().HasAnswered();
  // Of one that answers no more nobody knows.
  if (after.pending > before.pending && isAnswered)
    return {"pending", "accepted, but not so yet" + isNow};
  if (after.uncertain > before.uncertain) {
    return {"unconfirmed", NoAnswerText(projector) + ", it may have been changed" + isNow,
            ExitCode::NoAnswer};
  }
  if (after.unanswered > before.unanswered) {
    return {"notDone", NoAnswerText(projector), ExitCode::NoAnswer};
  }
  if (after.notOffered > before.notOffered) return {"refused", kNotOffered, ExitCode::Refused};
  const bool isBusy = after.busy > before.busy;
  if (isBusy || (!accepted && !now)) {
    const char* const rest = RestOf(AskPower(projector));
    if (rest != nullptr || isBusy) {
      return {"busy", std::string("refused, the projector is ") + (rest ? rest : "busy"),
              ExitCode::Refused};
    }
  }
  if (!accepted) return {"refused", "refused" + isNow, ExitCode::Refused};
  if (now) return {"refused", "refused" + isNow, ExitCode::Refused};
  if (!setting.readable) return {"done"};
  return {"unconfirmed", std::string("accepted, but ") + ReasonOf(projector, kNotReadable),
          isAnswered ? ExitCode::Refused : ExitCode::NoAnswer};
}

/// Makes as many steps as a change wants of a setting that cannot be read.
Made MakeSteps(const Change& change, const Work& work, ProjectorAccess& projector) {
  const int wanted = change.typed.amount;
  const CPjtInterface::Tally before = projector.Connection().Sent();
  const int done =
      projector.StepUnread(*change.setting, wanted, [&work] { return !work.isInterrupted(); });
  if (done == std::abs(wanted)) return {"done"};
  const std::string accepted = std::to_string(done) + " of " + std::to_string(std::abs(wanted)) +
                               (std::abs(wanted) == 1 ? " step" : " steps") + " accepted";
  const CPjtInterface::Tally after = projector.Connection().Sent();
  if (after.commands - before.commands == done) return {"stopped", "stopped, " + accepted};
  Made made = Judge(work, projector, *change.setting, wanted, {}, before, false, after);
  made.text += "; " + accepted;
  return made;
}

/// Makes a change and adds what the projector has then.
std::optional<Made> Make(const Change& change, const Work& work, ProjectorAccess& projector,
                         Values& values, Report& report) {
  const ModelSetting& setting = *change.setting;
  if (TargetOf(projector).OnlySteps(setting)) return MakeSteps(change, work, projector);
  const ModelSettings& settings = projector.Settings();
  CPjtInterface& connection = projector.Connection();
  const auto source = settings.PresentSource(connection, setting);
  // Others were changed already, so that wrong use would say too much.
  const auto value =
      change.aim ? change.aim : Aim(change, work, projector, source, {}, ExitCode::Refused, report);
  if (!value) return {};
  const CPjtInterface::Tally before = connection.Sent();
  const Sent sent = settings.Change(
      connection, setting, *value,
      {work.texts.Value(setting, *value), source, ProgressOf(work, projector).goesOn});
  const CPjtInterface::Tally after = connection.Sent();
  std::optional<int> now;
  if (!projector.Channel().IsGone() && setting.readable) {
    // A setter without a result says nothing; what is read afterwards does.
    now = settings.Read(connection, setting, source);
  }
  if (now) values.Add(setting, *now, connection.Power());
  return Judge(work, projector, setting, *value, now, before, sent == Sent::Accepted, after);
}

QJsonObject Describe(const Change& change, const std::optional<Made>& made) {
  QJsonObject json{{"key", Wide(change.setting->key)},
                   {"wanted", Wide(change.word)},
                   {"outcome", made ? made->outcome : "notDone"}};
  if (made && !made->text.empty()) json["reason"] = Wide(made->text);
  return json;
}

}  // namespace

bool NeedsAsking(const Work& work, const Target& target, Report& report) {
  const std::vector<Change> changes = ChangesOf(work, target, report);
  const bool isComplete = 2 * changes.size() == work.arguments.words.size();
  return !isComplete || std::ranges::any_of(changes, [&target](const Change& change) {
    return change.typed.relative || IsUnbounded(target, *change.setting);
  });
}

Report CheckSet(const Work& work, ProjectorAccess& projector) {
  Report report;
  CheckedChanges(work, projector, report);
  return report;
}

Report RunSet(const Work& work, ProjectorAccess& projector) {
  Report report;
  const std::vector<Change> changes = CheckedChanges(work, projector, report);
  if (report.code != ExitCode::Done) return report;  // nothing is sent unless all of it can be
  const Progress progress = ProgressOf(work, projector);
  Values values(work.texts);
  QJsonArray told;
  for (const Change& change : changes) {
    std::optional<Made> made;
    if (progress.goesOn()) made = Make(change, work, projector, values, report);
    if (made && !made->text.empty()) {
      report.Complain(std::string(change.setting->key) + ": " + made->text, made->code);
    }
    told.append(Describe(change, made));
    progress.step();
  }
  values.PutInto(report);
  report.json["changes"] = told;
  return report;
}

Report RunReset(const Work& work, ProjectorAccess& projector) {
  Report report;
  const auto chosen = Chosen(TargetOf(projector), kReset, work.arguments.words, report);
  if (report.code != ExitCode::Done) return report;
  const Progress progress = ProgressOf(work, projector);
  std::vector<const ModelSetting*> done;
  for (const ModelSetting* setting : chosen) {
    if (!progress.goesOn()) break;
    if (Perform(projector.Connection(), *setting->reset).accepted) {
      done.push_back(setting);
    } else {
      ComplainOf(*setting, projector, "refused", report);
    }
  }
  ReadInto(work, projector, done, report);
  return report;
}
