#include "app/bridge/Command.h"

#include <cmath>
#include <optional>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr qsizetype kLongestTag = 100;

ParsedCommand Wrong(const QString& error, const QJsonValue& tag = {}) {
  return {.command = {.key = {}, .value = QString(), .tag = tag}, .error = error};
}

bool IsValue(const QJsonValue& value) {
  constexpr double kMost = 1e6;
  const double number = value.toDouble(NAN);
  return value.isString() || value.isBool() ||
         (std::abs(number) <= kMost && number == std::floor(number));
}

ParsedCommand ParseJson(const QByteArray& payload) {
  QJsonParseError fault;
  const QJsonDocument document = QJsonDocument::fromJson(payload, &fault);
  if (!document.isObject()) {
    return Wrong(document.isNull() ? "not JSON: " + fault.errorString()
                                   : QStringLiteral("the JSON is no object"));
  }
  const QJsonObject json = document.object();
  const QJsonValue tag = json["id"];
  const bool isTag = tag.isUndefined() || tag.isDouble() ||
                     (tag.isString() && tag.toString().size() <= kLongestTag);
  if (!isTag) return Wrong(QStringLiteral("\"id\" is no number or short text"));
  for (const QString& member : json.keys()) {
    if (member != "key" && member != "value" && member != "id") {
      return Wrong(QStringLiteral("unknown member \"%1\"").arg(member.left(kLongestTag)), tag);
    }
  }
  if (json["key"].toString().isEmpty()) return Wrong(QStringLiteral("\"key\" is missing"), tag);
  if (!IsValue(json["value"])) {
    return Wrong(QStringLiteral("\"value\" is no text, whole number, true or false"), tag);
  }
  return {
      .command = {.key = json["key"].toString().toStdString(), .value = json["value"], .tag = tag}};
}

std::optional<bool> PowerIn(const std::string& value) {
  const QString text = QString::fromStdString(value).toLower();
  if (text == "on" || text == "1" || text == "=1") return true;
  if (text == "standby" || text == "off" || text == "0" || text == "=0") return false;
  return {};
}

QString Quoted(const QString& text) { return '\'' + text.left(kLongestTag) + '\''; }

QString QuotedValueOf(const Command& command) {
  return Quoted(command.value.toVariant().toString());
}

}  // namespace

ParsedCommand ParseCommand(const QByteArray& key, const QByteArray& payload) {
  if (payload.size() > kLongestCommand) {
    return Wrong(QStringLiteral("the command has more than %1 bytes").arg(kLongestCommand));
  }
  if (key.isEmpty()) return ParseJson(payload);
  const QString text = QString::fromUtf8(payload);
  if (text.contains(QChar::ReplacementCharacter) || text.contains(QChar::Null)) {
    return Wrong(QStringLiteral("the value is no text in UTF-8"));
  }
  return {.command = {.key = key.toStdString(), .value = text.trimmed()}};
}

std::string TypedValueOf(const Command& command) {
  if (command.value.isBool()) return command.value.toBool() ? "1" : "0";
  const QString text = command.value.toVariant().toString();
  return (command.value.isDouble() ? '=' + text : text).toStdString();
}

QString CheckCommand(const Command& command, const ModelSettings& settings,
                     const SettingTexts& texts, const KeyRules& rules) {
  const QString key = Quoted(QString::fromStdString(command.key));
  const bool isPower = command.key == kPowerKey;
  const ModelSetting* const setting = settings.Find(command.key);
  if (!isPower && setting == nullptr) return "the model has no setting " + key;
  if (!rules.Allows(command.key)) return key + " may not be commanded";
  if (isPower) {
    return PowerIn(TypedValueOf(command)) ? QString()
                                          : QStringLiteral("the power is on or standby");
  }

  using Kind = ModelSetting::Kind;
  const bool isAction = setting->kind == Kind::Action;
  if (isAction && setting->entries.empty()) return {};
  // The inputs of a PJLink projector are only known after asking it.
  if (setting->SelectsInput() && setting->entries.empty()) return {};
  if (!isAction && !setting->changeable) return key + " cannot be set";
  const auto typed = texts.Parse(*setting, TypedValueOf(command));
  const bool isOffered = typed && (isAction ? PositionOf(setting->entries, typed->amount) >= 0
                                            : typed->relative || Resolve(*setting, *typed, {}));
  if (isOffered) return {};
  return QuotedValueOf(command) +
         " is not one of: " + QString::fromStdString(texts.Values(*setting));
}

FleetWork WorkOf(const Command& command) {
  if (command.key == kPowerKey) return SwitchPower{PowerIn(TypedValueOf(command)).value_or(false)};
  return SetSetting{command.key, TypedValueOf(command)};
}

QByteArray AnswerMessage(const Command& command, const std::string& outcome,
                         const std::string& reason) {
  const auto shortened = [](const QString& text) { return text.left(kLongestTag); };
  const QJsonValue& value = command.value;
  QJsonObject json{{"key", shortened(QString::fromStdString(command.key))},
                   {"value", value.isString() ? shortened(value.toString()) : value},
                   {"outcome", QString::fromStdString(outcome)}};
  if (!reason.empty()) {
    // It may name the value as it was passed on.
    const QString typed = Quoted(QString::fromStdString(TypedValueOf(command)));
    json["reason"] = QString::fromStdString(reason).replace(typed, QuotedValueOf(command));
  }
  if (!command.tag.isUndefined() && !command.tag.isNull()) json["id"] = command.tag;
  return QJsonDocument(json).toJson(QJsonDocument::Compact);
}
