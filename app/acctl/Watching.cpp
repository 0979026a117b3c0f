#include "app/acctl/Watching.h"

#include <algorithm>
#include <map>

#include <QDateTime>
#include <QJsonDocument>

#include "app/acctl/Conditions.h"
#include "app/acctl/Message.h"
#include "app/acctl/Output.h"
#include "app/acctl/ProjectorRuns.h"
#include "app/acctl/Reading.h"
#include "app/acctl/Signals.h"
#include "app/acctl/Simulated.h"
#include "app/acctl/Uses.h"

namespace {

using Clock = std::chrono::steady_clock;

/// A value as it was read; nothing if it could not be read.
struct Seen {
  std::optional<int> value{};
  std::optional<PowerState> power{};

  bool IsLike(const Seen& other, const ValueTexts& texts, const ModelSetting& setting) const {
    if (value != other.value) return false;
    // Warming up and on are one value.
    return !value || texts.Code(setting, *value, power) == texts.Code(setting, *value, other.power);
  }
};

/// Adds to a problem that the projector is in standby.
std::string RestingText(const std::string& problem, PowerState power) {
  if (power == PowerState::Standby) {
    return Message(Acctl::tr("%1, the projector is in standby"), problem);
  }
  return power == PowerState::WarmingUp
             ? Message(Acctl::tr("%1, the projector is warming up"), problem)
             : Message(Acctl::tr("%1, the projector is cooling down"), problem);
}

/// What the watches of all projectors share.
struct Shared {
  const Work& work;
  const std::vector<Condition>& conditions;  ///< Of --where.
  std::optional<Condition> until;
  std::optional<Clock::time_point> end;
  bool isReaderGone = false;
  int code = ExitCode::Done;

  bool GoesOn() const {
    return !work.isInterrupted() && !isReaderGone && (!end || Clock::now() < *end);
  }
  void Write(const std::string& text) {
    if (!isReaderGone && !Print(text)) isReaderGone = true;
  }
  void Fail(int exitCode) { code = std::max(code, exitCode); }
};

class ProjectorWatch {
 public:
  ProjectorWatch(Shared& shared, const FleetProfile& profile, int nameWidth)
      : shared_(shared),
        profile_(profile),
        isSimulated_(IsSimulated(profile, shared.work.arguments)),
        prefix_(ShownName(profile.name, isSimulated_)) {
    const int gap = nameWidth - DisplayWidth(prefix_) + 2;
    prefix_.append(static_cast<std::size_t>(gap), ' ');
  }

  void Run() {
    constexpr std::chrono::milliseconds kLongestPause{60'000};
    auto pause = shared_.work.arguments.interval;
    while (shared_.GoesOn() && !isFinished_) {
      auto open = OpenWithoutLock(shared_.work, profile_, [this] { return shared_.GoesOn(); });
      if (!open) break;
      const bool wasSilent = isSilent_;
      Follow(*open);
      open.reset();
      if (isFinished_ || !shared_.GoesOn()) break;
      pause = wasSilent && isSilent_ ? std::min(2 * pause, std::max(pause, kLongestPause))
                                     : shared_.work.arguments.interval;
      Wait(pause, nullptr);
    }
    if (!shared_.until || isFinished_) return;
    if (const int signal = ReceivedSignal(); signal != 0) {
      Add(InterruptionOf());
      return shared_.Fail(ExitCode::Signalled + signal);
    }
    shared_.Fail(isSilent_ ? ExitCode::NoAnswer : ExitCode::Refused);
    if (!isSilent_)
      Add({ProblemCode::Pending, Message(Acctl::tr("not so in time")), shared_.until->key});
  }

 private:
  /// Reads again and again until the projector is gone, there is nothing more to wait for, or
  /// another entry with its address is to be read.
  void Follow(OpenProjector& open) {
    ProjectorAccess& projector = *open.access;
    lastRead_ = Clock::now();
    if (!IsChosen(projector)) return;
    const Work& work = shared_.work;
    Report lacks;
    std::vector<std::string> words = work.arguments.words;
    const bool isWatched =
        !shared_.until || std::ranges::find(words, shared_.until->key) != words.end();
    if (!isWatched) words.push_back(shared_.until->key);
    const auto chosen = Chosen(TargetOf(projector), kRead, words, work.isForSeveral, lacks);
    if (!std::exchange(isBegun_, true)) ReportLacks(lacks);
    isFinished_ = isFinished_ || chosen.empty();
    if (isFinished_) return;
    const Progress progress = ProgressOf(work, projector);
    while (!projector.Channel().IsGone() && shared_.GoesOn() && !isFinished_) {
      for (const auto& [setting, source] :
           projector.Settings().PrepareReads(projector.Connection(), chosen)) {
        if (!progress.goesOn() || isFinished_) break;
        Take(projector, *setting,
             projector.Settings().Read(projector.Connection(), *setting, source));
      }
      lastRead_ = Clock::now();
      if (projector.Channel().IsGone()) break;
      if (isFinished_ || !Wait(work.arguments.interval, &open)) return;
    }
    if (projector.Channel().IsGone()) TakeSilence(projector);
  }

  void TakeSilence(const ProjectorAccess& projector) {
    lastRead_ = Clock::now();
    if (!std::exchange(isSilent_, true)) Add(NoAnswerOf(projector));
  }

  /// Whether the projector met the conditions when it first answered. If not, there is nothing to
  /// watch.
  bool IsChosen(ProjectorAccess& projector) {
    if (isChosen_) return true;
    Report report;
    isChosen_ = MeetsAll(shared_.conditions, shared_.work.texts, projector, report);
    const bool isSilent = report.code != ExitCode::Done;
    if (isSilent) TakeSilence(projector);
    isFinished_ = !isChosen_ && !isSilent;
    return isChosen_;
  }

  /// Reports settings that the projector lacks. If the awaited one is among them, it cannot be
  /// reached.
  void ReportLacks(const Report& lacks) {
    for (const Problem& problem : lacks.problems) {
      Add(problem);
      if (shared_.until && problem.key == shared_.until->key) isFinished_ = true;
    }
    shared_.Fail(lacks.code);
  }

  void Take(ProjectorAccess& projector, const ModelSetting& setting, std::optional<int> value) {
    if (!projector.Channel().HasAnswered()) return;
    if (std::exchange(isSilent_, false)) {
      Add({.code = "answers",
           .text = Message(Acctl::tr("answers again")),
           .exitCode = ExitCode::Done});
    }
    const Seen seen{value, projector.Connection().Power()};
    const auto [known, isNew] = last_.try_emplace(std::string(setting.key), seen);
    if (isNew || !known->second.IsLike(seen, shared_.work.texts, setting)) {
      const bool hasOld = !isNew && known->second.value.has_value();
      if (value) {
        Write(setting, hasOld ? &known->second : nullptr, seen);
      } else {
        AddUnread(projector, setting);
      }
      known->second = seen;
    }
    const auto& until = shared_.until;
    isFinished_ = isFinished_ || (until && value && IsMeant(projector, setting) &&
                                  IsMet(*until, shared_.work.texts, setting, *value, seen.power));
  }

  bool IsMeant(const ProjectorAccess& projector, const ModelSetting& setting) const {
    Report ignored;
    const auto named = Chosen(TargetOf(projector), kRead, {shared_.until->key}, true, ignored);
    return std::ranges::find(named, &setting) != named.end();
  }

  void AddUnread(ProjectorAccess& projector, const ModelSetting& setting) {
    Problem problem =
        FailureOf(projector, {ProblemCode::NotReadable, NotReadable(), std::string(setting.key)});
    if (const auto power = AskPower(projector); IsResting(power)) {
      problem.text = RestingText(problem.text, *power);
    }
    Add(problem);
  }

  void Add(const Problem& problem) {
    Complain(ShownName(profile_.name, isSimulated_) + ": " + problem.Line());
    if (shared_.work.arguments.format == Format::Text) return;
    const bool isNote = problem.exitCode == ExitCode::Done;
    Write({{isNote ? "note" : "error", Describe(problem)}});
  }

  void Write(QJsonObject json) {
    json["name"] = Wide(profile_.name);
    json["simulated"] = isSimulated_;
    json["time"] = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    shared_.Write(QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString() + '\n');
  }

  /// `old` is the value before; null if there is none.
  void Write(const ModelSetting& setting, const Seen* old, const Seen& now) {
    const ValueTexts& texts = shared_.work.texts;
    if (shared_.work.arguments.format == Format::Text) {
      Table line;
      line.Add({std::string(setting.key), texts.Shown().Caption(setting),
                texts.Shown().Value(setting, *now.value, now.power)});
      shared_.Write(prefix_ + line.Text());
      return;
    }
    QJsonObject json = DescribeValue(texts, setting, *now.value, now.power);
    json["old"] = QJsonValue();
    if (old != nullptr) json["old"] = DescribeValueAlone(texts, setting, *old->value, old->power);
    json["new"] = DescribeValueAlone(texts, setting, *now.value, now.power);
    Write(json);
  }

  /// Waits until this time after the last reading, or until others want the address of the open
  /// projector; then false.
  bool Wait(std::chrono::milliseconds time, const OpenProjector* open) const {
    const auto end = lastRead_ + time;
    while (shared_.GoesOn() && Clock::now() < end) {
      if (open != nullptr && open->hold && open->hold->IsWanted()) return false;
      JobLoop::Pause(shared_.end ? std::min(end, *shared_.end) : end);
    }
    return true;
  }

  Shared& shared_;
  const FleetProfile& profile_;
  const bool isSimulated_;
  std::string prefix_;
  std::map<std::string, Seen> last_;
  Clock::time_point lastRead_;
  bool isBegun_ = false;
  bool isChosen_ = false;
  bool isSilent_ = false;
  bool isFinished_ = false;
};

/// Reports words that are wrong for a projector. Returns whether there are any.
bool HasWrongWords(const Work& work, const Projectors& projectors, ModelCache& models) {
  Printer printer(work.arguments, 0);
  const auto checked = CheckWords(work, projectors, models, [](const auto&, const auto&) {});
  bool isWrong = false;
  for (std::size_t i = 0; i < projectors.size(); ++i) {
    if (!checked[i]) continue;
    isWrong = true;
    printer.Add(projectors[i]->name, IsSimulated(*projectors[i], work.arguments), *checked[i]);
  }
  if (isWrong) printer.Finish();
  return isWrong;
}

}  // namespace

int Watch(const Work& work, const Projectors& projectors, ModelCache& models,
          const std::vector<Condition>& conditions) {
  if (HasWrongWords(work, projectors, models)) return ExitCode::WrongUse;
  Shared shared{.work = work, .conditions = conditions, .until = {}, .end = {}};
  if (!work.arguments.until.empty()) {
    const auto fail = [&work](const std::string& error) {
      return ReportError(
          work.arguments,
          {.code = ProblemCode::WrongUse, .text = error, .exitCode = ExitCode::WrongUse});
    };
    const ConditionList until = ParseConditions(work.arguments.until);
    if (!until.error.empty() || until.conditions.size() != 1) {
      return fail(Message(Acctl::tr("--until: '%1' is not KEY=VALUE"), work.arguments.until));
    }
    const std::string error = ImpossibleValue(until.conditions, work.texts, projectors, models);
    if (!error.empty()) return fail("--until " + error);
    shared.until = until.conditions.front();
  }
  if (work.arguments.wait) shared.end = Clock::now() + *work.arguments.wait;
  WatchSignals();
  AllowFilesFor(static_cast<int>(projectors.size()));
  int width = 0;
  for (const FleetProfile* profile : projectors) {
    width = std::max(width,
                     DisplayWidth(ShownName(profile->name, IsSimulated(*profile, work.arguments))));
  }
  constexpr std::chrono::milliseconds kLook{20};
  std::size_t watched = projectors.size();
  work.loop->Run(projectors.size() + 1, [&](std::size_t number) {
    if (number < projectors.size()) {
      ProjectorWatch(shared, *projectors[number], width).Run();
      --watched;
      return;
    }
    while (watched > 0 && shared.GoesOn()) {
      JobLoop::Pause(Clock::now() + kLook);
      if (!HasReader()) shared.isReaderGone = true;
    }
    work.loop->WakeAll();
  });
  return shared.isReaderGone ? ExitCode::Refused : shared.code;
}
