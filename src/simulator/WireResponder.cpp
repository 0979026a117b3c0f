#include "simulator/WireResponder.h"

#include <variant>

namespace AdvancedControl {

std::string WireResponder::Receive(std::string_view bytes) {
  std::string answer;
  decoder_.Add(bytes);
  while (const auto frame = decoder_.Next()) {
    if (const auto* hello = std::get_if<Wire::Hello>(&frame->message)) {
      greeted_ = hello->lowest <= Wire::kVersion && hello->highest >= Wire::kVersion;
      const Wire::Welcome welcome{greeted_ ? Wire::kVersion : std::uint8_t{0}};
      Wire::Append(answer, {.sequence = frame->sequence, .message = welcome});
    } else if (const auto* request = std::get_if<Wire::Request>(&frame->message)) {
      Wire::Append(answer, {.sequence = frame->sequence, .message = Answer(*request)});
    }
  }
  return answer;
}

Wire::Reply WireResponder::Answer(const Wire::Request& request) {
  if (!greeted_) return {.status = Wire::Status::NoHello};
  const auto command = Wire::MakeCommand(request);
  if (!command) return {.status = Wire::Status::UnknownOperation};
  const PjtReply reply = projector_.Execute(*command);
  if (!reply.answered) return {.status = Wire::Status::Unanswered};
  return {.result = reply.result, .value = reply.value};
}

}  // namespace AdvancedControl
