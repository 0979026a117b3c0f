// The commands that compare projectors with files of settings and restore them.

#include "app/acctl/Commands.h"
#include "app/acctl/FileCheck.h"
#include "app/acctl/Message.h"
#include "app/acctl/Reading.h"
#include "app/acctl/ReplacedValues.h"
#include "app/acctl/RestoredOutcomes.h"
#include "app/acctl/Selection.h"
#include "app/acctl/UndoRuns.h"

namespace {

Restoration MakeRestoration(const Work& work, ProjectorAccess& projector) {
  return {work.files.Of(projector.Name()).snapshot, projector.Settings(), projector.Connection(),
          [&work](const SavedSetting& saved) { return IsLike(saved.key, work.arguments.only); }};
}

void ReportIfGone(const ProjectorAccess& projector, Report& report) {
  if (projector.Channel().IsGone()) report.Add(NoAnswerOf(projector));
}

void ReportIfCut(const Work& work, const RestoredOutcomes& outcomes, Report& report) {
  if (work.isInterrupted() && outcomes.Count(Outcome::NotReached) > 0) report.Add(InterruptionOf());
}

/// With --exit-code, 1 says that something differs, so an error is 2, and so is what could not be
/// compared.
void TakeExitCode(const RestoredOutcomes& outcomes, Report& report) {
  const bool isLeft = outcomes.Count(Outcome::NotReached) > 0;
  if (isLeft || report.code == ExitCode::Refused) {
    report.code = std::max(report.code, ExitCode::WrongUse);
  }
  if (outcomes.Count(Outcome::Differs) > 0) report.code = std::max(report.code, ExitCode::Refused);
}

}  // namespace

Report RunDiff(const Work& work, ProjectorAccess& projector) {
  Report report = CheckFile(work, projector);
  if (report.code != ExitCode::Done) return report;
  Restoration restoration = MakeRestoration(work, projector);
  restoration.Read(ProgressOf(work, projector));
  ReportIfGone(projector, report);
  const RestoredOutcomes outcomes(work, TargetOf(projector), restoration);
  outcomes.PutInto(report);
  ReportIfCut(work, outcomes, report);
  report.text = outcomes.Differences() + outcomes.Summary() + '\n';
  if (work.arguments.exitCode) TakeExitCode(outcomes, report);
  return report;
}

Report RunApply(const Work& work, ProjectorAccess& projector) {
  if (work.arguments.dryRun) return RunDiff(work, projector);
  Report report = CheckFile(work, projector);
  if (report.code != ExitCode::Done) return report;
  const Progress progress = ProgressOf(work, projector);
  Restoration restoration = MakeRestoration(work, projector);
  restoration.Read(progress);
  bool wasKept = false;
  bool isKept = true;
  restoration.Send(work.texts.Shown(), progress, [&] {
    const Snapshot undo = restoration.Undo(projector.Name(), work.texts.Shown());
    if (undo.settings.empty() && undo.beforehand.empty()) return true;
    isKept = KeepUndo(work, projector.Name(), undo);
    wasKept = wasKept || (isKept && work.undoIds.contains(projector.Name()));
    return isKept;
  });
  if (wasKept) report.json["undo"] = work.undo->Path();
  if (!isKept) {
    const QString error = work.undo->Error();
    report.Add({ProblemCode::File, wasKept ? Message(Acctl::tr("%1; no more was sent"), error)
                                           : Message(Acctl::tr("%1; nothing was sent"), error)});
  }
  ReportIfGone(projector, report);
  const RestoredOutcomes outcomes(work, TargetOf(projector), restoration);
  outcomes.PutInto(report);
  ReportIfCut(work, outcomes, report);
  report.text = outcomes.Differences() + outcomes.Summary() + '\n';
  return report;
}
