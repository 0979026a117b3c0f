#include "app/acctl/SetRun.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "app/acctl/Message.h"
#include "app/acctl/Reading.h"

namespace {

/// A projector that is changing its power state counts as done.
bool IsSo(const ModelSetting& setting, int value, int now) {
  return setting.kind == ModelSetting::Kind::State ? (now == 1) == (value == 1) : now == value;
}

std::string BusyText(std::optional<PowerState> power) {
  if (power == PowerState::Standby) {
    return Message(Acctl::tr("refused, the projector is in standby"));
  }
  if (power == PowerState::WarmingUp) {
    return Message(Acctl::tr("refused, the projector is warming up"));
  }
  return power == PowerState::CoolingDown
             ? Message(Acctl::tr("refused, the projector is cooling down"))
             : Message(Acctl::tr("refused, the projector is busy"));
}

}  // namespace

SetRun::SetRun(const Work& work, ProjectorAccess& projector, const std::vector<Change>& changes,
               Report& report)
    : work_(work), projector_(projector), report_(report), replaced_(work, projector) {
  for (const Change& change : changes) results_.push_back({.change = &change, .aim = change.aim});
}

void SetRun::ReadBefore() {
  std::vector<const ModelSetting*> settings;
  std::vector<Result*> readable;
  for (Result& result : results_) {
    const ModelSetting& setting = *result.change->setting;
    result.before = result.change->present;
    result.source = result.change->source;
    if (!setting.readable || result.before || TargetOf(projector_).OnlySteps(setting)) continue;
    settings.push_back(&setting);
    readable.push_back(&result);
  }
  const ModelSettings& model = projector_.Settings();
  const auto reads = model.PrepareReads(projector_.Connection(), settings);
  for (std::size_t i = 0; i < reads.size() && ProgressOf(work_, projector_).goesOn(); ++i) {
    readable[i]->source = reads[i].source;
    readable[i]->before = model.Read(projector_.Connection(), *settings[i], reads[i].source);
  }
  if (projector_.Channel().IsGone() && !results_.empty()) FailUnanswered(results_.front());
}

// An earlier change may have changed the value, or the source or mode that it belongs to.
void SetRun::ReadAgain(Result& result) {
  const ModelSetting& setting = *result.change->setting;
  const bool wasChanged = std::ranges::any_of(results_, [&](const Result& other) {
    return &other < &result && other.change->setting == &setting;
  });
  if (!setting.readable || (!isForOtherMode_ && !wasChanged)) return;
  result.source = projector_.Settings().PresentSource(projector_.Connection(), setting);
  result.before = projector_.Settings().Read(projector_.Connection(), setting, result.source);
}

void SetRun::ReadNow(Result& result) {
  CPjtInterface& connection = projector_.Connection();
  result.now = projector_.Settings().Read(connection, *result.change->setting, result.source);
  result.power = connection.Power();
}

void SetRun::Make() {
  const Progress progress = ProgressOf(work_, projector_);
  for (Result& result : results_) {
    if (!progress.goesOn()) break;
    const ModelSetting& setting = *result.change->setting;
    if (TargetOf(projector_).OnlySteps(setting)) {
      MakeSteps(result);
    } else {
      ReadAgain(result);
      if (projector_.Channel().IsGone()) {
        FailUnanswered(result);
        break;
      }
      // Not wrong usage, because other settings were changed already.
      if (!result.aim) {
        result.aim = AimOf(*result.change, work_, TargetOf(projector_), result.before,
                           ExitCode::Refused, report_);
      }
      if (!result.aim) continue;
      // A run that cannot be undone goes on, and says so.
      replaced_.Keep(setting, result.before, result.aim, result.source);
      Make(result);
      if (result.now == result.aim) replaced_.Confirm();
      const bool wasSo = result.before == result.aim;
      isForOtherMode_ = isForOtherMode_ || (SelectsMode(work_, setting) && !wasSo);
      if (setting.kind == ModelSetting::Kind::State) WaitForEffect({&result, 1});
    }
  }
  replaced_.ReportFailure(report_);
}

void SetRun::Make(Result& result) {
  const ModelSetting& setting = *result.change->setting;
  CPjtInterface& connection = projector_.Connection();
  const CPjtInterface::Tally before = connection.Sent();
  const Sent sent =
      projector_.Settings().Change(connection, setting, *result.aim,
                                   {work_.texts.Shown().Value(setting, *result.aim), result.source,
                                    ProgressOf(work_, projector_).goesOn});
  const CPjtInterface::Tally after = connection.Sent();
  // The setter has no result, so only reading the setting shows whether it succeeded.
  if (!projector_.Channel().IsGone() && setting.readable) {
    ReadNow(result);
  }
  Judge(result, before, sent == Sent::Accepted, after);
}

void SetRun::MakeSteps(Result& result) {
  const int wanted = result.change->typed.amount;
  KeepRun(work_, projector_.Name());
  const CPjtInterface::Tally before = projector_.Connection().Sent();
  const int done = projector_.StepUnread(*result.change->setting, wanted,
                                         [this] { return !work_.isInterrupted(); });
  if (done == std::abs(wanted)) {
    result.outcome = "done";
    return;
  }
  const CPjtInterface::Tally after = projector_.Connection().Sent();
  if (after.commands - before.commands == done) {
    Fail(result, "stopped", ProblemCode::Stopped,
         Message(Acctl::tr("stopped, %1 of %n steps accepted", nullptr, std::abs(wanted)), done),
         ExitCode::Done);
    return;
  }
  Judge(result, before, false, after);
  if (result.problem) {
    result.problem->text =
        Message(Acctl::tr("%1; %2 of %n steps accepted", nullptr, std::abs(wanted)),
                result.problem->text, done);
  }
}

void SetRun::Fail(Result& result, const char* outcome, const char* code, std::string text,
                  int exitCode) {
  result.outcome = outcome;
  result.problem =
      Problem{code, std::move(text), std::string(result.change->setting->key), {}, exitCode};
}

void SetRun::FailUnanswered(Result& result) {
  const Problem silence = NoAnswerOf(projector_);
  Fail(result, "notDone", silence.code, silence.text, ExitCode::NoAnswer);
}

std::string SetRun::NowText(const Result& result) const {
  if (!result.now) return {};
  return work_.texts.Shown().Value(*result.change->setting, *result.now, result.power);
}

/// Decides the outcome of a change from the commands that were sent between `before` and `after`,
/// and from the value that the setting has now.
void SetRun::Judge(Result& result, const CPjtInterface::Tally& before, bool accepted,
                   const CPjtInterface::Tally& after) {
  const ModelSetting& setting = *result.change->setting;
  const std::string now = NowText(result);
  if (result.now && IsSo(setting, *result.aim, *result.now)) {
    result.outcome = "done";
    return;
  }
  if (work_.isInterrupted() && setting.IsStepped() && result.now) {
    return Fail(result, "stopped", ProblemCode::Stopped, Message(Acctl::tr("stopped at %1"), now),
                ExitCode::Done);
  }
  const bool isAnswered = projector_.Channel().HasAnswered();
  // If the projector does not answer any more, the outcome is unknown.
  if (after.pending > before.pending && isAnswered) {
    return Fail(result, "pending", ProblemCode::Pending,
                result.now ? Message(Acctl::tr("accepted, but not so yet, it is %1"), now)
                           : Message(Acctl::tr("accepted, but not so yet")),
                ExitCode::Done);
  }
  if (after.uncertain > before.uncertain) {
    const Problem silence = NoAnswerOf(projector_);
    return Fail(
        result, "unconfirmed", silence.code,
        result.now ? Message(Acctl::tr("%1, it may have been changed, it is %2"), silence.text, now)
                   : Message(Acctl::tr("%1, it may have been changed"), silence.text),
        ExitCode::NoAnswer);
  }
  if (after.unanswered > before.unanswered) return FailUnanswered(result);
  if (after.notOffered > before.notOffered) {
    return Fail(result, "refused", ProblemCode::NotOffered, NotOffered(), ExitCode::Refused);
  }
  const bool isBusy = after.busy > before.busy;
  if (isBusy || (!accepted && !result.now)) {
    const auto power = AskPower(projector_);
    if (IsResting(power) || isBusy) {
      return Fail(result, "busy", IsResting(power) ? RestCodeOf(*power) : ProblemCode::Busy,
                  BusyText(power), ExitCode::Refused);
    }
  }
  if (!accepted || result.now) {
    return Fail(
        result, "refused", ProblemCode::Refused,
        result.now ? Message(Acctl::tr("refused, it is %1"), now) : Message(Acctl::tr("refused")),
        ExitCode::Refused);
  }
  if (!setting.readable) {
    result.outcome = "done";
    return;
  }
  const Problem failure = FailureOf(projector_, {ProblemCode::Unconfirmed, NotReadable()});
  Fail(result, "unconfirmed", failure.code,
       Message(Acctl::tr("accepted, but not confirmed: %1"), failure.text),
       isAnswered ? ExitCode::Refused : ExitCode::NoAnswer);
}

bool SetRun::IsInEffect(const Result& result) const {
  const ModelSetting& setting = *result.change->setting;
  if (!result.now || !result.aim) return !setting.readable;
  return work_.texts.Code(setting, *result.now, result.power) ==
         work_.texts.Code(setting, *result.aim);
}

void SetRun::WaitForEffect(std::span<Result> results) {
  if (!work_.arguments.wait) return;
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds kStep{20};
  const Progress progress = ProgressOf(work_, projector_);
  if (!end_) end_ = Clock::now() + *work_.arguments.wait;
  auto next = Clock::now();
  const auto isAwaited = [this](const Result& result) {
    const bool mayCome =
        std::string_view(result.outcome) == "done" || std::string_view(result.outcome) == "pending";
    return mayCome && result.change->setting->readable && !IsInEffect(result);
  };
  while (progress.goesOn() && std::ranges::any_of(results, isAwaited) && Clock::now() < *end_) {
    JobLoop::Pause(Clock::now() + kStep);
    if (Clock::now() < next) continue;
    next = Clock::now() + work_.arguments.interval;
    for (Result& result : results) {
      if (!isAwaited(result)) continue;
      ReadNow(result);
      if (IsInEffect(result)) {
        result.outcome = "done";
        result.problem.reset();
      }
    }
  }
  for (Result& result : results) {
    if (!isAwaited(result)) continue;
    const Problem silence = NoAnswerOf(projector_);
    if (projector_.Channel().IsGone()) {
      Fail(result, "unconfirmed", silence.code, silence.text, ExitCode::NoAnswer);
    } else {
      Fail(result, "pending", ProblemCode::Pending,
           result.now ? Message(Acctl::tr("not so in time, it is %1"), NowText(result))
                      : Message(Acctl::tr("not so in time")),
           ExitCode::Refused);
    }
  }
}

void SetRun::Compare() {
  for (Result& result : results_) {
    const ModelSetting& setting = *result.change->setting;
    if (!TargetOf(projector_).OnlySteps(setting) && !result.aim) {
      result.aim = AimOf(*result.change, work_, TargetOf(projector_), result.before,
                         ExitCode::Refused, report_);
    }
    result.outcome = result.before && result.before == result.aim ? "alreadySo" : "different";
  }
}

QJsonObject SetRun::Describe(const Result& result) const {
  const ModelSetting& setting = *result.change->setting;
  QJsonObject json{{"key", Wide(setting.key)},
                   {"wanted", Wide(result.change->word)},
                   {"outcome", result.outcome}};
  const auto add = [&](const char* member, std::optional<int> value,
                       std::optional<PowerState> power = {}) {
    if (value) json[member] = DescribeValueAlone(work_.texts, setting, *value, power);
  };
  add("before", result.before);
  add("after", result.now, result.power);
  if (work_.arguments.dryRun) add("aim", result.aim);
  if (result.problem) json["reason"] = Wide(result.problem->text);
  return json;
}

/// Reports that the earlier value is unknown and cannot be restored.
void SetRun::AddUnknownBefore(const Result& result) {
  const ModelSetting& setting = *result.change->setting;
  const bool wasReached = std::string_view(result.outcome) != "notDone";
  const bool isReadable = setting.readable && !TargetOf(projector_).OnlySteps(setting);
  if (result.before || !wasReached || !isReadable) return;
  const bool isMissed = setting.Restorable() && !work_.arguments.dryRun;
  report_.Add(
      {.code = ProblemCode::NotReadable,
       .text = Message(isMissed
                           ? Acctl::tr("the value before could not be read, and cannot be restored")
                           : Acctl::tr("the value before could not be read")),
       .key = std::string(setting.key),
       .exitCode = ExitCode::Done});
}

void SetRun::Finish() {
  Values values(work_.texts, work_.arguments.format);
  QJsonArray changes;
  for (const Result& result : results_) {
    const ModelSetting& setting = *result.change->setting;
    const std::string before =
        result.before ? work_.texts.Shown().Value(setting, *result.before) : std::string();
    const auto value = work_.arguments.dryRun ? result.aim : result.now;
    if (value) {
      const auto power = work_.arguments.dryRun ? std::nullopt : result.power;
      values.AddChanged(setting, before, *value, power);
    }
    if (result.problem) report_.Add(*result.problem);
    AddUnknownBefore(result);
    changes.append(Describe(result));
  }
  const bool isCut = std::ranges::any_of(results_, [](const Result& result) {
    return std::string_view(result.outcome) == "notDone" && !result.problem;
  });
  if (isCut && work_.isInterrupted()) report_.Add(InterruptionOf());
  values.PutInto(report_);
  if (work_.arguments.dryRun) report_.json.remove("settings");
  report_.json["changes"] = changes;
}
