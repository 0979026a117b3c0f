#include "device/protocol/WireCommand.h"

#include <algorithm>
#include <utility>

namespace AdvancedControl {

void WireCommand::Begin(const PjtCommand& command, SessionTime now) {
  command_ = command;
  isSent_ = false;
  wasForgotten_ = false;
  if (longest_) giveUpAt_ = now + *longest_;
}

SessionTime WireCommand::Within(std::chrono::milliseconds time, SessionTime now) const {
  return std::min<SessionTime>(now + time, giveUpAt_);
}

bool WireCommand::RepeatForgotten() {
  const bool isFirst = !std::exchange(wasForgotten_, true);
  if (!isFirst) isSent_ = false;
  return isFirst;
}

void WireCommand::Answer(const Wire::Reply& reply) {
  const int refused = RefusedResult(command_.operation);
  switch (reply.status) {
    case Wire::Status::Answered:
      reply_ = {.result = reply.result, .value = reply.value};
      break;
    case Wire::Status::UnknownOperation:
      reply_ = {.result = refused, .offered = false};
      break;
    default:
      reply_ = {.result = refused, .answered = false};
      break;
  }
}

void WireCommand::Fail(ConnectionState problem) {
  // Without a common version the projector executes nothing.
  const bool isUnsent = !isSent_ || problem == ConnectionState::OtherVersion;
  reply_ = {.result = RefusedResult(command_.operation), .answered = false, .unsent = isUnsent};
}

}  // namespace AdvancedControl
