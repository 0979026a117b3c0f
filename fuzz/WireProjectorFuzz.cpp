// Any bytes to the projector's end of the wire protocol. It must answer with the right number of
// complete frames, however the bytes are split.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "fuzz/Check.h"
#include "simulator/WireResponder.h"

namespace {

class Counting final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override {
    Check(!OperationName(command.operation).empty());
    ++commands;
    return {.result = 1, .value = command.first};
  }
  int commands = 0;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  Counting projector;
  const std::string answer = WireResponder(projector).Receive(bytes);

  Counting another;
  WireResponder responder(another);
  std::string pieces;
  for (std::size_t at = 0, piece = 1; at < size; at += piece, piece = piece % 13 + 1) {
    pieces += responder.Receive(bytes.substr(at, piece));
  }
  Check(pieces == answer && another.commands == projector.commands);

  Wire::Decoder asked;
  Wire::Decoder answered;
  asked.Add(bytes);
  answered.Add(answer);
  while (const auto frame = asked.Next()) {
    std::string again;
    Wire::Append(again, *frame);
    Check(again.size() <= Wire::kMaximumFrame && bytes.find(again) != std::string_view::npos);
    if (frame->message.index() % 2 != 0) continue;  // only projectors send these
    const auto reply = answered.Next();
    Check(reply && reply->sequence == frame->sequence &&
          reply->message.index() == frame->message.index() + 1);
  }
  Check(!answered.Next() && answered.Skipped() == 0);
  return 0;
}
