#pragma once

#include <string>

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include "app/bridge/KeyRules.h"
#include "fleet/FleetWork.h"
#include "snapshots/SettingTexts.h"

/// A change that the sender of a command asks for.
struct Command {
  std::string key{};
  QJsonValue value{};  ///< As it was sent: a text, a whole number, true or false.
  QJsonValue tag{};    ///< The sender's name for the command, which the answer repeats.
};

struct ParsedCommand {
  Command command{};
  QString error{};  ///< One line; empty when all is well.
};

inline constexpr qsizetype kLongestCommand = 4096;  ///< Bytes.

/// Reads a command: with a key the payload is the value; without one it is JSON with the members
/// "key", "value" and, if wanted, "id". The payload may be anything.
ParsedCommand ParseCommand(const QByteArray& key, const QByteArray& payload);

/// The value as a person types it; see `SettingTexts::Parse`. A number is absolute, below zero too.
std::string TypedValueOf(const Command& command);

/// Says what is wrong with a command for a projector with these settings, without asking the
/// projector: one line; empty when all is well.
QString CheckCommand(const Command& command, const ModelSettings& settings,
                     const SettingTexts& texts, const KeyRules& rules);

/// The work of a job for a command without an error.
FleetWork WorkOf(const Command& command);

/// The answer to a command in JSON: its outcome and the reason.
QByteArray AnswerMessage(const Command& command, const std::string& outcome,
                         const std::string& reason);
