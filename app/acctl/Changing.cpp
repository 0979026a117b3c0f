// The commands that change settings one by one.

#include <algorithm>

#include "app/acctl/Commands.h"
#include "app/acctl/Message.h"
#include "app/acctl/Reading.h"
#include "app/acctl/ReplacedValues.h"
#include "app/acctl/SetRun.h"

Report RunSet(const Work& work, ProjectorAccess& projector) {
  Report report;
  const std::vector<Change> changes = CheckedChanges(work, projector, report);
  if (StopsChanges(report)) return report;  // nothing is sent unless all of it can be
  SetRun run(work, projector, changes, report);
  run.ReadBefore();
  if (work.arguments.dryRun) {
    run.Compare();
  } else {
    run.Make();
    run.WaitForEffect();
  }
  run.Finish();
  return report;
}

namespace {

/// A setting that is reset, and its value before.
struct Replaced {
  const ModelSetting* setting;
  std::optional<int> source{};
  std::optional<int> before{};
};

/// Reads what can be restored later.
std::vector<Replaced> ReadBefore(ProjectorAccess& projector,
                                 const std::vector<const ModelSetting*>& settings,
                                 const Progress& progress) {
  std::vector<Replaced> all;
  std::vector<const ModelSetting*> restorable;
  for (const ModelSetting* setting : settings) {
    all.push_back({setting});
    if (setting->Restorable()) restorable.push_back(setting);
  }
  const ModelSettings& model = projector.Settings();
  for (const auto& [setting, source] : model.PrepareReads(projector.Connection(), restorable)) {
    if (!progress.goesOn()) break;
    Replaced& replaced = *std::ranges::find(all, setting, &Replaced::setting);
    replaced.source = source;
    replaced.before = model.Read(projector.Connection(), *setting, source);
  }
  return all;
}

/// Notes that a reset cannot be undone, if so.
void AddUnknownBefore(const Replaced& replaced, Report& report) {
  if (replaced.before) return;
  const bool isMissed = replaced.setting->Restorable();
  report.Add({.code = isMissed ? ProblemCode::NotReadable : ProblemCode::NotPossible,
              .text = Message(
                  isMissed ? Acctl::tr("the value before could not be read, and cannot be restored")
                           : Acctl::tr("this cannot be undone")),
              .key = std::string(replaced.setting->key),
              .exitCode = ExitCode::Done});
}

}  // namespace

Report RunReset(const Work& work, ProjectorAccess& projector) {
  Report report;
  const auto chosen =
      Chosen(TargetOf(projector), kReset, work.arguments.words, work.isForSeveral, report);
  if (report.code == ExitCode::WrongUse) return report;
  const Progress progress = ProgressOf(work, projector);
  const std::vector<Replaced> all = ReadBefore(projector, chosen, progress);
  if (projector.Channel().IsGone()) {
    report.Add(NoAnswerOf(projector));
    return report;
  }
  ReplacedValues kept(work, projector);
  std::vector<const ModelSetting*> done;
  for (const Replaced& replaced : all) {
    if (work.isInterrupted()) {
      report.Add(InterruptionOf());
      break;
    }
    if (!progress.goesOn()) break;
    const ModelSetting& setting = *replaced.setting;
    kept.Keep(setting, replaced.before, {}, replaced.source);
    if (Perform(projector.Connection(), *setting.reset).accepted) {
      done.push_back(&setting);
      AddUnknownBefore(replaced, report);
    } else {
      report.Add(FailureOf(projector, {ProblemCode::Refused, Message(Acctl::tr("refused")),
                                       std::string(setting.key)}));
    }
  }
  kept.ReportFailure(report);
  ReadInto(work, projector, done, report);
  return report;
}
