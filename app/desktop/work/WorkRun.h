#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QObject>
#include <QTimer>

#include "app/desktop/work/PowerUndo.h"
#include "app/desktop/work/WorkPlan.h"
#include "fleet/FleetJob.h"

class FleetWatch;

/// The result of the work on one projector.
struct WorkLine {
  std::string id;
  WorkOutcome outcome = WorkOutcome::Waiting;
  QString reason{};
  int unread = 0;  ///< Settings that are missing in the snapshot that was taken.
  std::shared_ptr<const std::vector<SettingDifference>> differences{};  ///< Of a comparison.

  bool HasFailed() const {
    return outcome == WorkOutcome::Refused || outcome == WorkOutcome::NoAnswer;
  }
  bool WasStopped() const { return outcome == WorkOutcome::Stopped; }
};

/// Carries out a plan with jobs of the fleet, repeats it on those that failed or were stopped, and
/// can undo it.
class WorkRun : public QObject {
  Q_OBJECT

 public:
  /// `watch` and `texts` must outlive it.
  WorkRun(FleetWatch& watch, const SettingTexts& texts, WorkPlan plan, QObject* parent = nullptr);
  ~WorkRun() override;

  /// Begins with all, or again with those that failed or were stopped.
  void Start();
  /// Whether there are any of these. Those that cannot do the work are none of them.
  bool HasRest() const;
  void Cancel();
  bool IsRunning() const { return !jobs_.empty(); }
  /// Cancels what is running, waits for the commands that are under way, and takes the results.
  void Finish();

  const WorkPlan& Plan() const { return plan_; }
  /// In the order of the plan.
  const std::vector<WorkLine>& Lines() const { return lines_; }
  /// "137 of 500 done · 3 failed"
  QString Summary() const;
  /// The snapshots that were taken.
  const SnapshotsById& Taken() const { return taken_; }
  /// The settings that the projectors had before they were changed.
  const SnapshotsById& Undo() const { return undo_; }

  /// The plan that undoes everything that was done; nothing if nothing was.
  std::optional<WorkPlan> UndoPlan() const;

  static QString TextOf(const WorkLine& line);

 Q_SIGNALS:
  void Progressed();
  void Finished();

 private:
  struct Job;

  void Look();
  void Collect(const Job& job);

  FleetWatch& watch_;
  const SettingTexts& texts_;
  const WorkPlan plan_;
  std::vector<WorkLine> lines_;
  std::map<std::string, std::size_t> places_;  // of the lines
  PowerUndo power_;
  std::vector<std::unique_ptr<Job>> jobs_;
  SnapshotsById undo_;
  SnapshotsById taken_;
  QTimer looking_;
};
