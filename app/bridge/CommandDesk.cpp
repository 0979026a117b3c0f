#include "app/bridge/CommandDesk.h"

#include <utility>

namespace {

const char* NameOf(WorkOutcome outcome) {
  switch (outcome) {
    case WorkOutcome::Done:
      return "accepted";
    case WorkOutcome::Pending:
      return "pending";
    case WorkOutcome::Refused:
      return "refused";
    case WorkOutcome::NoAnswer:
      return "no-answer";
    default:
      return "stopped";
  }
}

}  // namespace

CommandDesk::CommandDesk(Rules rules, ModelBook& models, const SettingTexts& texts,
                         const Topics& topics, Services services)
    : rules_(std::move(rules)),
      models_(models),
      texts_(texts),
      topics_(topics),
      services_(std::move(services)),
      limit_(rules_.perMinute, rules_.burst) {}

void CommandDesk::Take(const BrokerMessage& message, Time now) {
  const auto [id, key] = topics_.ParseSet(message.topic);
  std::size_t index = 0;
  const FleetProfile* const profile = id.isEmpty() ? nullptr : services_.find(id, index);
  if (profile == nullptr) return;
  ParsedCommand parsed = ParseCommand(key, message.payload);
  if (message.isRetained) {
    if (message.payload.isEmpty()) return;
    // It would be carried out again with each connection.
    parsed.error = QStringLiteral("a command must not be retained");
  }
  if (const QString error = Refuse(*profile, index, parsed, now); !error.isEmpty()) {
    return Answer(id, parsed.command, "error", error.toStdString());
  }
  if (!services_.run(index, parsed.command)) {
    Answer(id, parsed.command, "error", "too many commands wait");
  }
}

QString CommandDesk::Refuse(const FleetProfile& profile, std::size_t index,
                            const ParsedCommand& parsed, Time now) {
  if (!parsed.error.isEmpty()) return parsed.error;
  if (!TakesCommands()) return QStringLiteral("commands are switched off");
  QString error = CheckCommand(parsed.command, models_.Of(profile), texts_, rules_.keys);
  if (!error.isEmpty()) return error;
  if (limit_.Take(index, now)) return {};
  return QStringLiteral("more than %1 commands a minute").arg(rules_.perMinute);
}

void CommandDesk::Finish(const QByteArray& id, const Command& command, const WorkResult& result,
                         bool isAsleep) {
  const bool isRefusedAsleep = isAsleep && result.outcome == WorkOutcome::Refused;
  const char* const outcome = isRefusedAsleep ? "standby" : NameOf(result.outcome);
  Answer(id, command, outcome, result.reason);
}

void CommandDesk::Answer(const QByteArray& id, const Command& command, const std::string& outcome,
                         const std::string& reason) {
  ++counts_[outcome];
  services_.answer({topics_.Answer(id), AnswerMessage(command, outcome, reason)});
}

void CommandDesk::TakeSwitch(const QByteArray& payload) {
  const QByteArray text = payload.left(kLongestCommand).trimmed().toLower();
  onByTopic_ = text.isEmpty() || text == "on";
}
