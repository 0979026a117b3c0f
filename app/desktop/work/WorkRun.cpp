#include "app/desktop/work/WorkRun.h"

#include <algorithm>
#include <utility>

#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/work/UsualSettings.h"
#include "snapshots/Restoration.h"

namespace {

constexpr std::chrono::milliseconds kLook{100};

// The reasons of jobs, which every program shows and which are English in the sources.
[[maybe_unused]] constexpr const char* kReasons[] = {
    QT_TRANSLATE_NOOP("FleetWork", "refused"),
    QT_TRANSLATE_NOOP("FleetWork", "the projector is busy or in standby"),
    QT_TRANSLATE_NOOP("FleetWork", "the projector does not have it"),
    QT_TRANSLATE_NOOP("FleetWork", "the model does not allow this value"),
    QT_TRANSLATE_NOOP("FleetWork", "it cannot be set"),
    QT_TRANSLATE_NOOP("FleetWork", "the model does not have it"),
    QT_TRANSLATE_NOOP("FleetWork", "the model has no such setting"),
    QT_TRANSLATE_NOOP("FleetWork", "there is no snapshot for it"),
    QT_TRANSLATE_NOOP("FleetWork", "not confirmed, it may have changed"),
    QT_TRANSLATE_NOOP("FleetWork", "not all of it could be sent"),
    QT_TRANSLATE_NOOP("FleetWork", "the projector reports none of its settings now"),
    QT_TRANSLATE_NOOP("FleetWork", "no answer"),
    QT_TRANSLATE_NOOP("FleetWork", "not reachable"),
    QT_TRANSLATE_NOOP("FleetWork", "not connected"),
    QT_TRANSLATE_NOOP("FleetWork", "wrong connection parameters"),
    QT_TRANSLATE_NOOP("FleetWork", "unknown host name"),
    QT_TRANSLATE_NOOP("FleetWork", "connection lost"),
    QT_TRANSLATE_NOOP("FleetWork", "answers are not understood"),
    QT_TRANSLATE_NOOP("FleetWork", "another version of the protocol"),
    QT_TRANSLATE_NOOP("FleetWork", "password missing or wrong"),
};

// "picture.brightness: refused" names the setting with its key.
QString Translated(const std::string& reason) {
  const std::size_t colon = reason.find(": ");
  const std::string text = colon == std::string::npos ? reason : reason.substr(colon + 2);
  return QCoreApplication::translate("FleetWork", text.c_str());
}

}  // namespace

struct WorkRun::Job {
  Job(FleetWatch& watch, const SettingTexts& texts, WorkPart part)
      : work(std::move(part.work)),
        targets(std::move(part.targets)),
        job(&watch.Projectors(), targets, work, texts) {}

  void AddUndoTo(SnapshotsById& kept) const;

  const FleetWork work;
  const std::vector<FleetTarget> targets;
  FleetJob job;
};

/// A projector may have been changed by an earlier attempt, too.
void WorkRun::Job::AddUndoTo(SnapshotsById& kept) const {
  UsualSettings models;
  const SnapshotsById undo = job.Undo();
  for (const FleetTarget& target : targets) {
    const auto found = undo.find(target.id);
    if (found == undo.end()) continue;
    const auto [place, isFirst] = kept.insert(*found);
    if (isFirst) continue;
    place->second = std::make_shared<const Snapshot>(
        UndoOfBoth(*place->second, *found->second, models.Of(target.model)));
  }
}

WorkRun::WorkRun(FleetWatch& watch, const SettingTexts& texts, WorkPlan plan, QObject* parent)
    : QObject(parent), watch_(watch), texts_(texts), plan_(std::move(plan)) {
  const auto add = [this](const std::string& id, WorkLine line) {
    places_.emplace(id, lines_.size());
    lines_.push_back(std::move(line));
  };
  for (const WorkPart& part : plan_.parts) {
    for (const FleetTarget& target : part.targets) add(target.id, {.id = target.id});
  }
  const auto refuse = [&add](const std::vector<std::string>& ids, const QString& reason) {
    for (const std::string& id : ids)
      add(id, {.id = id, .outcome = WorkOutcome::Refused, .reason = reason});
  };
  refuse(plan_.missing, tr("the model does not have it"));
  refuse(plan_.unknown, tr("not known whether it was on"));
  connect(&looking_, &QTimer::timeout, this, &WorkRun::Look);
}

WorkRun::~WorkRun() {
  for (const auto& job : jobs_) job->job.Cancel();
}

void WorkRun::Start() {
  for (WorkPart part : plan_.parts) {
    std::erase_if(part.targets, [this](const FleetTarget& target) {
      const WorkOutcome outcome = lines_[places_.at(target.id)].outcome;
      return outcome == WorkOutcome::Done || outcome == WorkOutcome::Pending;
    });
    for (const FleetTarget& target : part.targets) {
      lines_[places_.at(target.id)] = {.id = target.id};
      power_.Keep(part.work, target.id, watch_.Projectors().State(target.id));
    }
    if (!part.targets.empty())
      jobs_.push_back(std::make_unique<Job>(watch_, texts_, std::move(part)));
  }
  looking_.start(kLook);
  Q_EMIT Progressed();
}

bool WorkRun::HasRest() const {
  return std::ranges::any_of(plan_.parts, [this](const WorkPart& part) {
    return std::ranges::any_of(part.targets, [this](const FleetTarget& target) {
      const WorkLine& line = lines_[places_.at(target.id)];
      return line.HasFailed() || line.WasStopped();
    });
  });
}

void WorkRun::Cancel() {
  for (const auto& job : jobs_) job->job.Cancel();
}

void WorkRun::Finish() {
  if (!IsRunning()) return;
  Cancel();
  for (const auto& job : jobs_) job->job.Wait();
  Look();
}

void WorkRun::Look() {
  bool isOver = true;
  for (const auto& job : jobs_) {
    const auto [finished, all] = job->job.HowFar();
    isOver = isOver && finished == all;
  }
  for (const auto& job : jobs_) Collect(*job);
  if (isOver) {
    looking_.stop();
    for (const auto& job : jobs_) {
      job->AddUndoTo(undo_);
      for (const FleetTarget& target : job->targets) {
        power_.TakeOutcome(target.id, lines_[places_.at(target.id)].outcome);
        watch_.Projectors().AskSoon(target.id);
      }
    }
    jobs_.clear();
  }
  Q_EMIT Progressed();
  if (isOver) Q_EMIT Finished();
}

void WorkRun::Collect(const Job& job) {
  const std::vector<WorkResult> results = job.job.Results();
  for (std::size_t i = 0; i < results.size(); ++i) {
    const std::string& id = job.targets[i].id;
    WorkLine& line = lines_[places_.at(id)];
    if (line.outcome == results[i].outcome) continue;  // the rest changes with it
    line.outcome = results[i].outcome;
    line.reason = results[i].reason.empty() ? QString() : Translated(results[i].reason);
    if (!results[i].setting.empty())
      line.reason = tr("%1: %2").arg(QString::fromStdString(results[i].setting), line.reason);
    line.unread = results[i].unread;
    line.differences = results[i].differences;
    if (results[i].snapshot) taken_.try_emplace(id, results[i].snapshot);
  }
}

QString WorkRun::Summary() const {
  const auto count = [this](const auto& is) {
    return static_cast<int>(std::ranges::count_if(lines_, is));
  };
  const int done = count([](const WorkLine& line) { return line.outcome == WorkOutcome::Done; });
  const int pending =
      count([](const WorkLine& line) { return line.outcome == WorkOutcome::Pending; });
  const int failed = count(&WorkLine::HasFailed);
  const int stopped = count(&WorkLine::WasStopped);
  QStringList parts{tr("%1 of %n done", "projectors", static_cast<int>(lines_.size())).arg(done)};
  if (pending > 0) parts += tr("%n still under way", "projectors", pending);
  if (failed > 0) parts += tr("%n failed", "projectors", failed);
  if (stopped > 0) parts += tr("%n stopped", "projectors", stopped);
  return parts.join(QStringLiteral(" · "));
}

std::optional<WorkPlan> WorkRun::UndoPlan() const {
  WorkPlan undo{.title = tr("Undo: %1").arg(plan_.title), .question = {}, .parts = {}};
  power_.AddTo(undo, plan_.parts);
  WorkPart settings{.work = ApplySnapshots{undo_}, .targets = {}};
  for (const WorkPart& part : plan_.parts) {
    for (const FleetTarget& target : part.targets) {
      if (undo_.contains(target.id)) settings.targets.push_back(target);
    }
  }
  if (!settings.targets.empty()) undo.parts.push_back(std::move(settings));
  if (undo.parts.empty()) return std::nullopt;
  return undo;
}

QString WorkRun::TextOf(const WorkLine& line) {
  switch (line.outcome) {
    case WorkOutcome::Waiting:
      return {};
    case WorkOutcome::Working:
      return tr("working…");
    case WorkOutcome::Done:
      return line.unread == 0 ? tr("done")
                              : tr("done, %n settings could not be read", nullptr, line.unread);
    case WorkOutcome::Pending:
      return tr("accepted, still under way");
    case WorkOutcome::Refused:
      return line.reason.isEmpty() ? tr("refused") : line.reason;
    case WorkOutcome::NoAnswer:
      return line.reason.isEmpty() ? tr("no answer") : line.reason;
    case WorkOutcome::Stopped:
      return tr("stopped");
  }
  return {};
}
