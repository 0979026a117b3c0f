#include "app/acctl/Reading.h"

#include <algorithm>

#include "app/acctl/Uses.h"
#include "device/CommandCode.h"

namespace {

bool IsNamed(const Work& work, const ModelSetting& setting) {
  const auto& words = work.arguments.words;
  return std::ranges::find(words, setting.key) != words.end();
}

constexpr Call kPower = Get(CommandCode::RunningState);

bool IsPower(const ModelSetting& setting) {
  const auto* const state = std::get_if<StateRow>(setting.row);
  return state != nullptr && state->read.code == kPower.code;
}

// A projector that tells more than the value says so.
PowerState StateOf(int value, ProjectorAccess& projector) {
  if (const auto told = projector.Connection().Power()) return *told;
  if (value == 1) return PowerState::On;
  return value == 2 ? PowerState::CoolingDown : PowerState::Standby;
}

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

std::string Joined(const std::vector<std::string>& keys) {
  std::string text;
  for (const std::string& key : keys) text.append(text.empty() ? "" : ", ").append(key);
  return text;
}

}  // namespace

std::vector<std::string> Cells(const SettingTexts& texts, const ModelSetting& setting, int value,
                               std::optional<PowerState> power) {
  return {std::string(setting.key), texts.Caption(setting), texts.Value(setting, value, power)};
}

void Values::Add(const ModelSetting& setting, int value, std::optional<PowerState> power) {
  table_.Add(Cells(texts_, setting, value, power));
  json_.append(ValueOf(texts_, setting, value, power));
}

void Values::PutInto(Report& report) const {
  report.text = table_.Text();
  report.json["settings"] = json_;
}

std::optional<PowerState> AskPower(ProjectorAccess& projector) {
  // The channel has asked for it to find out why the projector is busy.
  const auto told = projector.Connection().Power();
  if (told && projector.Channel().Last().busy) return told;
  const auto value = Read(projector.Connection(), kPower);
  return value ? std::optional(StateOf(*value, projector)) : std::nullopt;
}

const char* RestOf(std::optional<PowerState> power) {
  if (power == PowerState::Standby) return "in standby";
  if (power == PowerState::WarmingUp) return "warming up";
  return power == PowerState::CoolingDown ? "cooling down" : nullptr;
}

void TellUnread(const std::vector<std::string>& keys, std::optional<PowerState> power,
                const char* what, Report& report) {
  if (power) report.json["power"] = NameOf(*power);
  if (keys.empty()) return;
  QJsonArray unread;
  for (const std::string& key : keys) unread.append(Wide(key));
  report.json["unread"] = unread;
  if (const char* const rest = RestOf(power)) {
    report.Complain(std::string(rest) + ", left out: " + Joined(keys), ExitCode::Done);
    return;
  }
  for (const std::string& key : keys) report.Complain(key + ": " + what, ExitCode::Refused);
}

void ReadInto(const Work& work, ProjectorAccess& projector,
              const std::vector<const ModelSetting*>& settings, Report& report) {
  const Progress progress = ProgressOf(work, projector);
  Values values(work.texts);
  std::vector<std::string> notOffered;
  std::vector<std::string> unread;
  std::optional<PowerState> power;
  std::vector<SourcedSetting> reads;
  if (progress.goesOn()) {
    reads = projector.Settings().PrepareReads(projector.Connection(), settings);
  }
  for (const auto& [setting, source] : reads) {
    CPjtInterface& connection = projector.Connection();
    if (const auto value = projector.Settings().Read(connection, *setting, source)) {
      values.Add(*setting, *value, connection.Power());
      if (IsPower(*setting)) power = StateOf(*value, projector);
    } else if (const auto& channel = projector.Channel();
               !channel.HasAnswered() || (!channel.IsOffered() && IsNamed(work, *setting))) {
      ComplainOf(*setting, projector, kNotReadable, report);
    } else if (channel.IsOffered()) {
      unread.emplace_back(setting->key);
    } else if (!work.arguments.words.empty()) {
      notOffered.emplace_back(setting->key);
    }
    progress.step();
    if (!progress.goesOn()) break;
  }
  if (!unread.empty() && !power) power = AskPower(projector);
  TellUnread(unread, power, kNotReadable, report);
  if (!notOffered.empty()) {
    report.Complain(std::string("skipped, ").append(kNotOffered).append(": ") + Joined(notOffered),
                    ExitCode::Done);
  }
  values.PutInto(report);
}
