#include "tests/support/RecordingChannel.h"

#include <algorithm>
#include <utility>

#include "device/channels/LoggingChannel.h"

namespace {

std::string Describe(const PjtCommand& command) {
  std::string text = FormatCommand(command);
  if (command.operation == PjtOperation::Set) {
    text.resize(text.find('(') - 1);
    return text + ' ' + std::to_string(static_cast<std::uint16_t>(command.first));
  }
  std::erase_if(text, [](char c) { return c == ',' || c == ')'; });
  std::ranges::replace(text, '(', ' ');
  return text.ends_with(' ') ? text.substr(0, text.size() - 1) : text;
}

// The script for the command, or for as many of its first words as possible.
auto Find(const auto& scripted, std::string command) {
  auto found = scripted.find(command);
  while (found == scripted.end() && command.find(' ') != std::string::npos) {
    command.resize(command.rfind(' '));
    found = scripted.find(command);
  }
  return found;
}

}  // namespace

PjtReply RecordingChannel::Execute(const PjtCommand& command) {
  const std::string text = Describe(command);
  sent_.push_back(text);
  if (Find(refused_, text) != refused_.end()) {
    return {.result = RefusedResult(command.operation), .value = -1};
  }
  const auto value = Find(values_, text);
  const auto result = Find(results_, text);
  return {.result = result == results_.end() ? AcceptedResult(command.operation) : result->second,
          .value = static_cast<std::int16_t>(value == values_.end() ? 0 : value->second)};
}

std::vector<std::string> RecordingChannel::Take() { return std::exchange(sent_, {}); }

std::vector<std::string> RecordingChannel::TakeChanges() {
  std::vector<std::string> changes = Take();
  std::erase_if(changes, [](const std::string& text) { return text.starts_with("Get"); });
  return changes;
}
