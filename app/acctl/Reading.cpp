#include "app/acctl/Reading.h"

#include <algorithm>

#include "app/acctl/Aliases.h"
#include "app/acctl/Message.h"
#include "device/CommandCode.h"

namespace {

bool IsNamed(const Work& work, const ModelSetting& setting) {
  return std::ranges::any_of(work.arguments.words, [&setting](const std::string& word) {
    return word == setting.key || (word == AliasOf(setting.key));
  });
}

constexpr Call kPower = Get(CommandCode::RunningState);

// Some projectors report more than the value says.
PowerState StateOf(int value, ProjectorAccess& projector) {
  if (const auto reported = projector.Connection().Power()) return *reported;
  if (value == 1) return PowerState::On;
  return value == 2 ? PowerState::CoolingDown : PowerState::Standby;
}

/// The name of a power state in the JSON member "power".
const char* NameOf(PowerState power) {
  switch (power) {
    case PowerState::On:
      return "on";
    case PowerState::WarmingUp:
      return "warmingUp";
    case PowerState::CoolingDown:
      return "coolingDown";
    default:
      return "standby";
  }
}

/// Says which settings a resting projector could not report.
std::string LeftOutText(PowerState power, const std::string& keys) {
  if (power == PowerState::Standby) return Message(Acctl::tr("in standby, left out: %1"), keys);
  if (power == PowerState::WarmingUp) return Message(Acctl::tr("warming up, left out: %1"), keys);
  return Message(Acctl::tr("cooling down, left out: %1"), keys);
}

std::string Joined(const std::vector<std::string>& keys) {
  std::string text;
  for (const std::string& key : keys) text.append(text.empty() ? "" : ", ").append(key);
  return text;
}

}  // namespace

Progress ProgressOf(const Work& work, const ProjectorAccess& projector) {
  return {.goesOn = [&work, &projector] {
    return !work.isInterrupted() && !projector.Channel().IsGone();
  }};
}

std::optional<PowerState> AskPower(ProjectorAccess& projector) {
  // To find out why the projector is busy, the channel has already asked.
  const auto reported = projector.Connection().Power();
  if (reported && projector.Channel().Last().busy) return reported;
  const auto value = Read(projector.Connection(), kPower);
  return value ? std::optional(StateOf(*value, projector)) : std::nullopt;
}

bool IsResting(std::optional<PowerState> power) { return power && *power != PowerState::On; }

const char* RestCodeOf(PowerState power) {
  if (power == PowerState::Standby) return ProblemCode::Standby;
  if (power == PowerState::WarmingUp) return ProblemCode::WarmingUp;
  return power == PowerState::CoolingDown ? ProblemCode::CoolingDown : ProblemCode::Busy;
}

void ReportUnread(const std::vector<std::string>& keys, std::optional<PowerState> power,
                  const std::string& what, Report& report) {
  if (power) report.json["power"] = NameOf(*power);
  if (keys.empty()) return;
  QJsonArray unread;
  for (const std::string& key : keys) unread.append(Wide(key));
  report.json["unread"] = unread;
  if (IsResting(power)) {
    report.Add({.code = RestCodeOf(*power),
                .text = LeftOutText(*power, Joined(keys)),
                .exitCode = ExitCode::Done});
    return;
  }
  for (const std::string& key : keys) report.Add({ProblemCode::NotReadable, what, key});
}

void ReadInto(const Work& work, ProjectorAccess& projector,
              const std::vector<const ModelSetting*>& settings, Report& report) {
  const Progress progress = ProgressOf(work, projector);
  Values values(work.texts, work.arguments.format);
  std::vector<std::string> notOffered;
  std::vector<std::string> unread;
  std::optional<PowerState> power;
  std::vector<SourcedSetting> reads;
  if (progress.goesOn()) {
    reads = projector.Settings().PrepareReads(projector.Connection(), settings);
  }
  std::size_t done = 0;
  for (const auto& [setting, source] : reads) {
    ++done;
    CPjtInterface& connection = projector.Connection();
    if (const auto value = projector.Settings().Read(connection, *setting, source)) {
      values.Add(*setting, *value, connection.Power());
      if (setting->IsPower()) power = StateOf(*value, projector);
    } else if (const auto& channel = projector.Channel();
               !channel.HasAnswered() || (!channel.IsOffered() && IsNamed(work, *setting))) {
      report.Add(FailureOf(projector,
                           {ProblemCode::NotReadable, NotReadable(), std::string(setting->key)}));
    } else if (channel.IsOffered()) {
      unread.emplace_back(setting->key);
    } else if (!work.arguments.words.empty()) {
      notOffered.emplace_back(setting->key);
    }
    if (!progress.goesOn()) break;
  }
  if (work.isInterrupted() && (done < reads.size() || reads.size() < settings.size())) {
    report.Add(InterruptionOf());
  }
  if (!unread.empty() && !power) power = AskPower(projector);
  ReportUnread(unread, power, NotReadable(), report);
  if (!notOffered.empty()) {
    report.Add({.code = ProblemCode::NotOffered,
                .text = Message(Acctl::tr("skipped, this projector does not offer it: %1"),
                                Joined(notOffered)),
                .exitCode = ExitCode::Done});
  }
  values.PutInto(report);
}
