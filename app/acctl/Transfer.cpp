// The commands that keep settings in files and put them back.

#include <array>
#include <cstdlib>

#include <QJsonArray>

#include "app/acctl/FileCheck.h"
#include "app/acctl/Output.h"
#include "app/acctl/Reading.h"
#include "fleet/WholeFile.h"
#include "snapshots/Restoration.h"

namespace {

struct OutcomeList {
  Outcome outcome;
  const char* member;     ///< Of the JSON.
  const char* text;       ///< Of the summary, behind their number; none where the list is quiet.
  const char* complaint;  ///< Of each, or in front of all keys where it is no error; may be none.
  int code;
};

constexpr std::array<OutcomeList, 12> kLists{{
    {Outcome::Changed, "changed", "changed", nullptr, ExitCode::Done},
    {Outcome::Differs, "different", "different", nullptr, ExitCode::Done},
    {Outcome::AlreadySo, "alreadySo", "already so", nullptr, ExitCode::Done},
    {Outcome::Pending, "pending", "not yet so", "accepted, but not so yet", ExitCode::Done},
    {Outcome::Refused, "refused", "refused", nullptr, ExitCode::Refused},
    {Outcome::Busy, "busy", "busy", "the projector is busy or in standby", ExitCode::Refused},
    {Outcome::Unconfirmed, "unconfirmed", "unconfirmed", "not confirmed, it may have changed",
     ExitCode::Refused},
    {Outcome::NotReached, "notDone", "not done", nullptr, ExitCode::Done},
    {Outcome::Unknown, "skipped", nullptr, "skipped, this model does not have it", ExitCode::Done},
    {Outcome::NotOffered, "skipped", nullptr, "skipped, this projector does not offer it",
     ExitCode::Done},
    {Outcome::NotSettable, "skipped", nullptr, "skipped, it is not one to put back",
     ExitCode::Done},
    {Outcome::NotAllowed, "skipped", nullptr, "skipped, this model does not take it",
     ExitCode::Done},
}};

const OutcomeList& ListOf(Outcome outcome) {
  return *std::ranges::find(kLists, outcome, &OutcomeList::outcome);
}

/// What became of a setting, as it is told.
struct Told {
  const RestoredSetting* restored;
  Outcome outcome;
  std::string reason{};  ///< None where the outcome's own complaint is it.
  int code = ExitCode::Done;
};

/// Whether a setting was interrupted while it was stepped.
bool IsStopped(const Work& work, const Restoration& restoration, const RestoredSetting& restored) {
  const bool isStepped = restored.setting != nullptr && restored.setting->IsStepped();
  if (restored.outcome != Outcome::Refused || !isStepped || !work.isInterrupted()) return false;
  const auto isLater = [&](const RestoredSetting& other) { return other.turn > restored.turn; };
  return restored.now && std::ranges::none_of(restoration.Beforehand(), isLater) &&
         std::ranges::none_of(restoration.Settings(), isLater);
}

Told Judge(const Work& work, const Target& target, const Restoration& restoration,
           const RestoredSetting& restored) {
  const auto isNow = [&] { return work.texts.Value(*restored.setting, *restored.now); };
  if (IsStopped(work, restoration, restored)) {
    return {&restored, Outcome::NotReached, "stopped at " + isNow()};
  }
  const bool lacksEntries = restored.setting != nullptr && target.LacksEntries(*restored.setting);
  if (restored.outcome == Outcome::NotSettable && lacksEntries) {
    return {&restored, Outcome::NotReached, kInputsNotRead, ExitCode::NoAnswer};
  }
  if (restored.outcome == Outcome::NotOffered && !target.Carries(kKept, *restored.setting)) {
    return {&restored, Outcome::NotOffered, kNotInPjLink};
  }
  const bool isSent = work.arguments.command == Arguments::Command::Apply && !work.arguments.dryRun;
  if (isSent && restored.outcome == Outcome::Differs && restored.setting->IsStepped() &&
      std::abs(*restored.before - restored.saved.value) > kMostSteps) {
    return {&restored, Outcome::NotReached,
            "not sent, it is more than " + std::to_string(kMostSteps) + " steps away",
            ExitCode::Refused};
  }
  if (restored.outcome == Outcome::Refused) {
    return {&restored, Outcome::Refused,
            restored.now ? "refused, it is " + isNow() : std::string("it ") + kNotReadable,
            ExitCode::Refused};
  }
  return {&restored, restored.outcome};
}

/// What is told: each setting, and beforehand those that are more than so already. What was changed
/// beforehand, and is so therefore, is told once.
std::vector<Told> Outcomes(const Work& work, const Target& target, const Restoration& restoration) {
  std::vector<Told> outcomes;
  const auto add = [&](const RestoredSetting& restored) {
    outcomes.push_back(Judge(work, target, restoration, restored));
  };
  for (const RestoredSetting& restored : restoration.Beforehand()) {
    if (restored.outcome != Outcome::AlreadySo) add(restored);
  }
  const std::vector beforehand = outcomes;
  for (const RestoredSetting& restored : restoration.Settings()) {
    const bool isTold =
        restored.outcome == Outcome::AlreadySo &&
        std::ranges::any_of(beforehand, [&](const Told& earlier) {
          return earlier.outcome == Outcome::Changed && earlier.restored->saved == restored.saved;
        });
    if (!isTold) add(restored);
  }
  return outcomes;
}

/// "12 changed, 28 already so, 1 refused"; what there is none of is left out.
std::string Summary(const std::vector<Told>& outcomes) {
  std::string text;
  int skipped = 0;
  const auto add = [&text](int count, const char* what) {
    if (count > 0) text += (text.empty() ? "" : ", ") + std::to_string(count) + ' ' + what;
  };
  for (const OutcomeList& list : kLists) {
    const auto count = static_cast<int>(std::ranges::count(outcomes, list.outcome, &Told::outcome));
    if (list.text == nullptr) {
      skipped += count;
    } else {
      add(count, list.text);
    }
  }
  add(skipped, "skipped");
  return text.empty() ? "nothing to do" : text;
}

QJsonObject Describe(const SettingTexts& texts, const RestoredSetting& restored) {
  QJsonObject json{{"key", Wide(restored.saved.key)}, {"saved", restored.saved.value}};
  if (restored.saved.source) json["source"] = *restored.saved.source;
  if (restored.setting != nullptr) {
    json["caption"] = Wide(texts.Caption(*restored.setting));
    json["savedText"] = Wide(texts.Value(*restored.setting, restored.saved.value));
  }
  if (restored.before) {
    json["before"] = *restored.before;
    json["beforeText"] = Wide(texts.Value(*restored.setting, *restored.before));
  }
  if (restored.now) json["now"] = *restored.now;
  return json;
}

/// The key, and which input source's setting it is.
std::string NameOf(const Work& work, const ModelSettings& model, const SavedSetting& saved) {
  std::string name = saved.key;
  if (saved.source) name.append(" (").append(work.texts.Source(model, *saved.source)) += ')';
  return name;
}

/// All lists for scripts, and what needs a person's eye: each error, and the rest by its reason.
void Tell(const Work& work, const ModelSettings& model, const std::vector<Told>& outcomes,
          Report& report) {
  std::map<QString, QJsonArray> lists;
  std::array<std::string, kLists.size()> keys;
  int notInPjLink = 0;
  for (const OutcomeList& list : kLists) lists[list.member];
  for (const Told& told : outcomes) {
    const RestoredSetting& restored = *told.restored;
    const OutcomeList& list = ListOf(told.outcome);
    const std::string name = NameOf(work, model, restored.saved);
    QJsonObject json = Describe(work.texts, restored);
    if (restored.isBeforehand) json["beforehand"] = true;
    if (told.outcome == Outcome::NotOffered && !told.reason.empty()) {
      json["reason"] = Wide(told.reason);
      ++notInPjLink;
    } else if (!told.reason.empty()) {
      json["reason"] = Wide(told.reason);
      report.Complain(std::string(name).append(": ").append(told.reason), told.code);
    } else if (list.complaint != nullptr) {
      json["reason"] = list.complaint;
      if (list.code != ExitCode::Done) {
        report.Complain(name + ": " + list.complaint, list.code);
      } else {
        std::string& same = keys[static_cast<std::size_t>(&list - kLists.data())];
        same += (same.empty() ? "" : ", ") + name;
      }
    }
    lists[list.member].append(json);
  }
  for (std::size_t i = 0; i < kLists.size(); ++i) {
    if (!keys[i].empty()) {
      report.Complain(std::string(kLists[i].complaint) + ": " + keys[i], kLists[i].code);
    }
  }
  if (notInPjLink > 0) {
    report.Complain(std::string("skipped, ") + kNotInPjLink + ": " + std::to_string(notInPjLink) +
                        " of the file's settings",
                    ExitCode::Done);
  }
  for (const auto& [member, list] : lists) report.json[member] = list;
}

/// What differs, or differed, line by line.
std::string Differences(const Work& work, const ModelSettings& model,
                        const Restoration& restoration) {
  Table table;
  for (const RestoredSetting& restored : restoration.Settings()) {
    const bool told = restored.outcome == Outcome::Differs || restored.outcome == Outcome::Changed;
    if (!told) continue;
    const ModelSetting& setting = *restored.setting;
    table.Add({NameOf(work, model, restored.saved), work.texts.Caption(setting),
               work.texts.Value(setting, *restored.before), "->",
               work.texts.Value(setting, restored.saved.value)});
  }
  return table.Text();
}

Restoration Restoring(const Work& work, ProjectorAccess& projector) {
  return {work.file.snapshot, projector.Settings(), projector.Connection(),
          [&work](const SavedSetting& saved) { return IsLike(saved.key, work.arguments.only); }};
}

void ComplainIfGone(const ProjectorAccess& projector, Report& report) {
  if (projector.Channel().IsGone()) report.Complain(NoAnswerText(projector), ExitCode::NoAnswer);
}

}  // namespace

Report RunSave(const Work& work, ProjectorAccess& projector) {
  Report report;
  const Target target = TargetOf(projector);
  Chosen(target, kKept, work.arguments.only, report);
  if (report.code != ExitCode::Done) return report;
  std::vector<std::string> unread;
  const Progress progress = ProgressOf(work, projector);
  Snapshot snapshot = TakeSnapshot(projector.Name(), projector.Settings(), projector.Connection(),
                                   work.texts, progress, &unread);
  // Half a snapshot would look like a whole one.
  if (!progress.goesOn()) {
    ComplainIfGone(projector, report);
    return report;
  }
  const auto isMeant = [&work](std::string_view key) { return IsLike(key, work.arguments.only); };
  std::erase_if(snapshot.settings,
                [&](const SavedSetting& setting) { return !isMeant(setting.key); });
  std::erase_if(unread, [&](const std::string& key) {
    return !isMeant(key) || !target.Carries(kKept, *target.settings.Find(key));
  });
  const ModelSetting* const input = target.settings.Input();
  const bool isInputUnread = input != nullptr && target.LacksEntries(*input) && isMeant(input->key);
  const auto power = unread.empty() && !isInputUnread ? std::nullopt : AskPower(projector);
  const bool rests = RestOf(power) != nullptr;
  if (isInputUnread && rests) unread.emplace_back(input->key);
  TellUnread(unread, power, "cannot be read now, and is left out", report);
  if (isInputUnread && !rests) {
    report.Complain(std::string(input->key) + ": " + kInputsNotRead, ExitCode::NoAnswer);
  }
  if (snapshot.settings.empty()) {
    report.Complain("nothing can be read, and nothing was written",
                    rests ? ExitCode::Done : ExitCode::Refused);
    report.json["saved"] = 0;
    return report;
  }
  const QByteArray bytes = WriteSnapshot(snapshot);
  if (work.arguments.file == "-") {
    report.text = bytes.toStdString();
    return report;
  }
  if (const QString error = WriteWholeFile(Wide(work.arguments.file), bytes); !error.isEmpty()) {
    report.Complain(error.toStdString(), ExitCode::Refused);
    return report;
  }
  const auto count = static_cast<int>(snapshot.settings.size());
  report.text = std::to_string(count) + " settings saved in " + work.arguments.file + '\n';
  report.json["file"] = Wide(work.arguments.file);
  report.json["saved"] = count;
  return report;
}

Report RunDiff(const Work& work, ProjectorAccess& projector) {
  Report report = CheckFile(work, projector);
  if (report.code != ExitCode::Done) return report;
  Restoration restoration = Restoring(work, projector);
  restoration.Read(ProgressOf(work, projector));
  ComplainIfGone(projector, report);
  const auto outcomes = Outcomes(work, TargetOf(projector), restoration);
  Tell(work, projector.Settings(), outcomes, report);
  report.text = Differences(work, projector.Settings(), restoration) + Summary(outcomes) + '\n';
  return report;
}

Report RunApply(const Work& work, ProjectorAccess& projector) {
  if (work.arguments.dryRun) return RunDiff(work, projector);
  Report report = CheckFile(work, projector);
  if (report.code != ExitCode::Done) return report;
  const Progress progress = ProgressOf(work, projector);
  Restoration restoration = Restoring(work, projector);
  restoration.Read(progress);
  UndoFile undo(Wide(work.arguments.file), Wide(work.arguments.undoFolder), projector.Name());
  restoration.Send(work.texts, progress,
                   [&] { return undo.Keep(restoration.Undo(projector.Name(), work.texts)); });
  if (!undo.Path().isEmpty()) report.json["undo"] = undo.Path();
  if (const QString error = undo.Error(); !error.isEmpty()) {
    report.Complain(error.toStdString(), ExitCode::Refused);
  }
  ComplainIfGone(projector, report);
  const auto outcomes = Outcomes(work, TargetOf(projector), restoration);
  Tell(work, projector.Settings(), outcomes, report);
  report.text = Summary(outcomes) + '\n';
  return report;
}
