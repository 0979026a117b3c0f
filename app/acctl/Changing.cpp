// The commands that change settings one by one.

#include "app/acctl/Commands.h"
#include "app/acctl/Reading.h"
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
    if (work.arguments.wait) run.WaitForEffect(*work.arguments.wait);
  }
  run.Finish();
  return report;
}

Report RunReset(const Work& work, ProjectorAccess& projector) {
  Report report;
  const auto chosen =
      Chosen(TargetOf(projector), kReset, work.arguments.words, work.isForSeveral, report);
  if (report.code == ExitCode::WrongUse) return report;
  const Progress progress = ProgressOf(work, projector);
  std::vector<const ModelSetting*> done;
  for (const ModelSetting* setting : chosen) {
    if (!progress.goesOn()) break;
    if (Perform(projector.Connection(), *setting->reset).accepted) {
      done.push_back(setting);
    } else {
      report.Add(
          FailureOf(projector, {ProblemCode::Refused, "refused", std::string(setting->key)}));
    }
  }
  ReadInto(work, projector, done, report);
  return report;
}
