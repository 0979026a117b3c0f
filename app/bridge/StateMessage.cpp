#include "app/bridge/StateMessage.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

QString Text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QJsonValue Known(const auto& value, const auto& convert) {
  return value ? QJsonValue(convert(*value)) : QJsonValue(QJsonValue::Null);
}

QString OnOff(bool isOn) { return isOn ? QStringLiteral("on") : QStringLiteral("off"); }

QString TimeText(WallTime time) {
  const auto sinceEpoch = std::chrono::duration_cast<std::chrono::seconds>(time.time_since_epoch());
  return QDateTime::fromSecsSinceEpoch(sinceEpoch.count(), Qt::UTC).toString(Qt::ISODate);
}

QJsonObject ProblemsJson(const PartProblems& problems) {
  QJsonObject json;
  for (std::size_t i = 0; i < problems.size(); ++i) {
    json[NameOf(static_cast<ProjectorPart>(i))] = NameOf(problems.at(i));
  }
  return json;
}

QJsonArray LampsJson(const std::vector<LampState>& lamps) {
  QJsonArray json;
  for (const LampState& lamp : lamps) {
    json.append(QJsonObject{{"hours", lamp.hours}, {"on", Known(lamp.isOn, OnOff)}});
  }
  return json;
}

}  // namespace

QByteArray StateMessage(const FleetProfile& profile, const LiveState& state) {
  const auto same = [](auto value) { return value; };
  QJsonObject json{
      {"name", Text(profile.name)},
      {"identity", Text(FleetIdOf(profile))},
      {"reachability", NameOf(state.reachability)},
      {"since", TimeText(state.since)},
      {"reason", QJsonValue::Null},
      {"power", Known(state.power, [](PowerState power) { return NameOf(power); })},
      {"input", Known(state.source,
                      [](const PlayingSource& source) {
                        return source.name.empty() ? QString::number(source.number)
                                                   : Text(source.name);
                      })},
      {"input-number", Known(state.source, [](const auto& source) { return source.number; })},
      {"blank", Known(state.blank, OnOff)},
      {"mute", Known(state.mute, OnOff)},
      {"freeze", Known(state.freeze, OnOff)},
      {"problems", Known(state.problems, ProblemsJson)},
      {"lamps", LampsJson(state.lamps)},
      {"lamp-hours", QJsonValue::Null},
      {"filter-hours", Known(state.filterHours, same)},
      {"drift", Known(state.drift, same)}};
  if (!state.lamps.empty()) json["lamp-hours"] = state.lamps.front().hours;
  const bool isSilent =
      state.reachability != Reachability::Answers && state.reachability != Reachability::NeverAsked;
  if (isSilent) json["reason"] = Text(ConnectionStateText(state.connection));
  return QJsonDocument(json).toJson(QJsonDocument::Compact);
}

std::string_view StateMemberOf(std::string_view statusKey) {
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 7> kMembers{
      {{"status.power", "power"},
       {"status.input-source", "input"},
       {"status.blank", "blank"},
       {"status.mute", "mute"},
       {"status.freeze", "freeze"},
       {"status.lamp-time", "lamp-hours"},
       {"status.filter-time", "filter-hours"}}};
  const auto* const found =
      std::ranges::find(kMembers, statusKey, [](const auto& member) { return member.first; });
  return found == kMembers.end() ? std::string_view() : found->second;
}

const char* NameOf(Reachability reachability) {
  switch (reachability) {
    case Reachability::Answers:
      return "answers";
    case Reachability::Silent:
      return "silent";
    case Reachability::WrongPassword:
      return "wrong-password";
    case Reachability::NotUnderstood:
      return "not-understood";
    case Reachability::NeverAsked:
      break;
  }
  return "never-asked";
}

const char* NameOf(PowerState power) {
  switch (power) {
    case PowerState::On:
      return "on";
    case PowerState::CoolingDown:
      return "cooling-down";
    case PowerState::WarmingUp:
      return "warming-up";
    case PowerState::Standby:
      break;
  }
  return "standby";
}

const char* NameOf(ProjectorPart part) {
  static constexpr std::array<const char*, PjLink::kParts> kNames{"fan",   "lamp",   "temperature",
                                                                  "cover", "filter", "other"};
  return kNames.at(static_cast<std::size_t>(part));
}

const char* NameOf(ProblemGrade grade) {
  static constexpr std::array<const char*, 3> kNames{"none", "warning", "error"};
  return kNames.at(static_cast<std::size_t>(grade));
}
