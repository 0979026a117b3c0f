#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "device/ProjectorChannel.h"

inline PjtCommand Do(PjtOperation operation, int first = 0, int second = 0) {
  return {operation, 0, static_cast<std::int16_t>(first), static_cast<std::int16_t>(second)};
}
inline PjtCommand Get(int code) { return {PjtOperation::Get, static_cast<std::uint16_t>(code)}; }
inline PjtCommand Inc(int code) { return {PjtOperation::Inc, static_cast<std::uint16_t>(code)}; }
inline PjtCommand Set(int code, int value) {
  return {PjtOperation::Set, static_cast<std::uint16_t>(code), static_cast<std::int16_t>(value)};
}

/// The replies to the commands: a value, "-" if refused, "!" if not offered, "?" if unanswered.
/// Pauses before each command.
inline std::string Replies(ProjectorChannel& channel, const std::vector<PjtCommand>& commands,
                           std::chrono::milliseconds pause = {}) {
  std::string replies;
  for (const PjtCommand& command : commands) {
    std::this_thread::sleep_for(pause);
    const PjtReply reply = channel.Execute(command);
    const bool accepted = IsSuccess(command.operation, reply.result);
    if (!replies.empty()) replies += ' ';
    replies += !accepted && !reply.answered  ? "?"
               : !accepted && !reply.offered ? "!"
               : accepted                    ? std::to_string(reply.value)
                                             : "-";
  }
  return replies;
}
