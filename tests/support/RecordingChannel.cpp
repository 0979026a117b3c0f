#include "tests/support/RecordingChannel.h"

#include <cstdio>
#include <utility>

namespace {

struct Described {
  std::string key;
  std::string text;
};

Described Describe(const PjtCommand& command) {
  std::string name(OperationName(command.operation));
  const std::string first = ' ' + std::to_string(command.first);
  const std::string second = ' ' + std::to_string(command.second);
  switch (FamilyOf(command.operation)) {
    case OperationFamily::Generic: {
      char code[16];
      std::snprintf(code, sizeof code, " 0x%04X", command.code);
      const std::string key = name + code;
      return {key, name == "Set" ? key + ' ' + std::to_string(std::uint16_t(command.first)) : key};
    }
    case OperationFamily::SourceGetter:
    case OperationFamily::SourceStepper:
    case OperationFamily::PointGetter:
    case OperationFamily::PointReset:
      return {name + first, name + first};
    case OperationFamily::SourceSetter:
    case OperationFamily::ShortSourceSetter:
      return {name + first, name + first + second};
    case OperationFamily::FlaggedSetter:
    case OperationFamily::SilentFlaggedSetter:
    case OperationFamily::ChannelStepper:
      return {name, name + first + second};
    case OperationFamily::IntSetter:
    case OperationFamily::ShortSetter:
    case OperationFamily::SilentSetter:
      return {name, name + first};
    default:
      return {name, name};
  }
}

}  // namespace

PjtReply RecordingChannel::Execute(const PjtCommand& command) {
  const Described described = Describe(command);
  sent_.push_back(described.text);
  const bool refusedToo = refusesChanges_ && !IsRead(command.operation);
  if (refusedToo || refused_.contains(described.key)) {
    return {.result = RefusedResult(command.operation), .value = -1};
  }
  const auto value = values_.find(described.key);
  const auto result = results_.find(described.key);
  return {.result = result == results_.end() ? AcceptedResult(command.operation) : result->second,
          .value = static_cast<std::int16_t>(value == values_.end() ? 0 : value->second)};
}

std::vector<std::string> RecordingChannel::Take() { return std::exchange(sent_, {}); }

std::vector<std::string> RecordingChannel::TakeChanges() {
  std::vector<std::string> changes = Take();
  std::erase_if(changes, [](const std::string& text) { return text.starts_with("Get"); });
  return changes;
}
