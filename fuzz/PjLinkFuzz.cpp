// Any bytes as lines from a PJLink peer, at either end, and as everything that a projector sends in
// a session.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "device/CommandCode.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkLine.h"
#include "device/protocol/PjLinkSession.h"
#include "fuzz/Check.h"
#include "simulator/PjLinkResponder.h"

namespace {

/// Accepts everything, and returns the values set.
class Plain final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override {
    if (command.operation != PjtOperation::Get) value_ = command.first;
    return {.result = AcceptedResult(command.operation), .value = value_};
  }

 private:
  std::int16_t value_ = 1;
};

void ReadAsReply(std::string_view text) {
  if (const auto seed = PjLink::ParseGreeting(text)) Check(seed->empty() || seed->size() == 8);
  const auto line = PjLink::Parse(text);
  Check(line || !PjLink::IsNotice(text));
  if (!line) return;
  Check(PjLink::Format(*line) == text);
  for (const auto value : {PjLink::PowerStatus, PjLink::ErrorStatus, PjLink::Blank, PjLink::Mute,
                           PjLink::Switch, PjLink::Hours, PjLink::LampHours}) {
    const int read = value(line->parameter).value_or(0);
    Check(read >= 0 && read <= UINT16_MAX);
  }
  const auto lamps = PjLink::Lamps(line->parameter);
  Check(lamps.size() <= 8);
  for (const PjLink::Lamp& lamp : lamps) Check(lamp.hours >= 0 && lamp.hours <= UINT16_MAX);
  for (const std::string& code : PjLink::InputCodes(line->parameter)) {
    const auto number = PjLink::InputNumber(code);
    Check(number && PjLink::InputCode(*number) == code);
  }
}

/// A projector that sends the bytes, one piece for each wait, and closes the connection with every
/// piece that starts with a certain byte.
class Talk {
 public:
  explicit Talk(std::string_view bytes) : rest_(bytes) {}

  void Run() {
    using Op = PjtOperation;
    constexpr PjtCommand kCommands[] = {
        {Op::Get, CommandCode::RunningState},    {Op::SetMute, 0, 1},
        {Op::Set, CommandCode::InputSource, 31}, {Op::Get, CommandCode::InputSource},
        {Op::Inc, CommandCode::Volume},          {Op::Get, CommandCode::Freeze}};
    for (const PjtCommand& command : kCommands) {
      session_.Begin(command, now_);
      Finish();
      const PjtReply& reply = session_.Reply();
      const bool isAccepted = IsSuccess(command.operation, reply.result);
      Check(!isAccepted || (reply.answered && reply.offered && !reply.busy && !reply.unsent));
      Check(isAccepted || !reply.pending);
      Check(!reply.unsent || !reply.answered);
    }
    PjLinkInputs inputs;
    for (auto question = inputs.Next(); question; question = inputs.Next()) {
      session_.Begin(*question, now_);
      Finish();
      if (!inputs.Take(session_.Result())) break;
    }
    Check(SourcesOf(inputs.Known(), InputCodes::AllNames).count <= SourceList::kCapacity);
  }

 private:
  void Finish() {
    constexpr int kMostSteps = 2000;
    int steps = 0;
    for (auto step = session_.Next(now_); step.kind != PjLinkStep::Kind::Finished;
         step = session_.Next(now_)) {
      Check(++steps < kMostSteps);
      if (step.kind == PjLinkStep::Kind::Connect) session_.Connection().Connected();
      if (step.kind == PjLinkStep::Kind::Wait) Say(step.until);
    }
  }

  void Say(PjLinkTime until) {
    now_ += std::chrono::milliseconds(1);
    if (rest_.empty()) {
      now_ = std::max(now_, until);
      return;
    }
    const std::size_t size = std::min<std::size_t>(rest_.size(), 40);
    const std::string_view piece = rest_.substr(0, size);
    rest_.remove_prefix(size);
    if (piece.front() == '!') session_.Connection().Closed(now_);
    session_.Connection().Received(piece, now_);
  }

  std::string_view rest_;
  PjLinkSession session_{"secret", {}};
  PjLinkTime now_{std::chrono::hours(1)};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  Talk(rest).Run();
  PjLinkResponder responder(std::make_shared<Plain>(),
                            {.inputs = {{"31", 1, "HDMI"}, {"6Z", 7, ""}}});
  while (!rest.empty()) {
    const std::string_view text = rest.substr(0, rest.find('\r'));
    rest.remove_prefix(std::min(rest.size(), text.size() + 1));
    ReadAsReply(text);
    const auto answer = responder.Answer(text);
    if (!answer) continue;
    const auto reply = PjLink::Parse(*answer);
    Check(reply && reply->separator == '=' && reply->command == text.substr(2, 4));
    Check(answer->size() < PjLink::kLongestInputs && answer->find('\r') == std::string::npos);
  }
  return 0;
}
