#include "device/channels/LoggingChannel.h"

#include <cstdio>

namespace AdvancedControl {

namespace {

std::string Hexadecimal(unsigned value, int digits) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%0*X", digits, value);
  return text;
}

std::string Arguments(const PjtCommand& command) {
  const OperationForm& form = FormOf(command.operation);
  if (form.first == Argument::None) return "";
  const std::string first = std::to_string(command.first);
  return form.second == Argument::None ? first : first + ", " + std::to_string(command.second);
}

}  // namespace

PjtReply LoggingChannel::Execute(const PjtCommand& command) {
  const auto start = std::chrono::steady_clock::now();
  const PjtReply reply = Inner().Execute(command);
  const auto elapsed = std::chrono::duration_cast<std::chrono::microseconds>(
      std::chrono::steady_clock::now() - start);
  if (observer_) observer_(command, reply, elapsed);
  return reply;
}

std::string FormatCommand(const PjtCommand& command, const PjtReply* reply) {
  const OperationForm& form = FormOf(command.operation);
  std::string text(OperationName(command.operation));
  if (form.isGeneric) {
    text += ' ' + Hexadecimal(command.code, 4);
    if (form.first == Argument::Value) {
      text += " (" + Hexadecimal(static_cast<std::uint16_t>(command.first), 2) + ')';
    }
  } else {
    text += '(' + Arguments(command) + ')';
  }
  if (!reply) return text;
  if (!reply->answered) return text + " no answer";
  if (!reply->offered) return text + " not offered";
  if (reply->busy) return text + " busy";
  if (!IsSuccess(command.operation, reply->result)) return text + " refused";
  if (reply->pending) return text + " accepted, not yet so";
  if (form.returns != Returns::Value) return text;
  const int value = form.isGeneric ? static_cast<std::uint16_t>(reply->value) : reply->value;
  return text + " = " + std::to_string(value);
}

}  // namespace AdvancedControl
