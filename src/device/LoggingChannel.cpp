#include "device/LoggingChannel.h"

#include <cstdio>

namespace {

std::string Hexadecimal(unsigned value, int digits) {
  char text[16];
  std::snprintf(text, sizeof text, "0x%0*X", digits, value);
  return text;
}

std::string Arguments(const PjtCommand& command) {
  switch (FamilyOf(command.operation)) {
    case OperationFamily::Action:
    case OperationFamily::CheckedReset:
    case OperationFamily::SilentAction:
    case OperationFamily::PointerGetter:
    case OperationFamily::DirectGetter:
      return "";
    case OperationFamily::FlaggedSetter:
    case OperationFamily::SilentFlaggedSetter:
    case OperationFamily::SourceSetter:
    case OperationFamily::ShortSourceSetter:
    case OperationFamily::ChannelStepper:
      return std::to_string(command.first) + ", " + std::to_string(command.second);
    default:
      return std::to_string(command.first);
  }
}

/// Whether a successful reply carries a value.
bool Yields(PjtOperation operation) {
  switch (FamilyOf(operation)) {
    case OperationFamily::PointerStepper:
    case OperationFamily::SourceStepper:
    case OperationFamily::ChannelStepper:
      return true;
    default:
      return IsRead(operation);
  }
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
  const bool generic = FamilyOf(command.operation) == OperationFamily::Generic;
  std::string text(OperationName(command.operation));
  if (generic) {
    text += ' ' + Hexadecimal(command.code, 4);
    if (command.operation == PjtOperation::Set) {
      text += " (" + Hexadecimal(static_cast<std::uint16_t>(command.first), 2) + ')';
    }
  } else {
    text += '(' + Arguments(command) + ')';
  }
  if (!reply) return text;
  if (!reply->answered) return text + " no answer";
  if (!reply->offered) return text + " not offered";
  if (!IsSuccess(command.operation, reply->result)) return text + " refused";
  if (!Yields(command.operation)) return text;
  const int value = generic ? static_cast<std::uint16_t>(reply->value) : reply->value;
  return text + " = " + std::to_string(value);
}
