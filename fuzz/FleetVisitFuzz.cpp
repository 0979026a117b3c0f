// Any bytes as what a watched projector does in several visits, over PJLink, on the wire and on a
// serial line. A visit must end, and tell nothing that cannot be. Each byte of the input selects
// what happens next.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "fleet/MakeVisit.h"
#include "fuzz/Check.h"

namespace {

class Projector {
 public:
  explicit Projector(std::string_view script) : script_(script) {}

  std::uint8_t Next() {
    if (script_.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(script_.front());
    script_.remove_prefix(1);
    return byte;
  }
  bool IsOver() const { return script_.empty(); }

  /// The next visit.
  void Serve(FleetTarget& target, LiveState& state, ProjectorMemory& memory) {
    constexpr int kMostSteps = 50'000;  // a few for each byte
    const auto visit = MakeVisit(target, {}, state, memory, Next());
    frames_ = {};
    lines_.clear();
    int steps = 0;
    for (auto step = visit->Next(now_); step.kind != SessionStep::Kind::Finished;
         step = visit->Next(now_)) {
      Check(++steps < kMostSteps);
      if (step.kind == SessionStep::Kind::Send) {
        frames_.Add(step.bytes);
        lines_ += step.bytes;
      }
      if (step.kind == SessionStep::Kind::Wait) Happen(*visit, step.until);
      CheckState(visit->State());
    }
    Check(visit->AnswerTime() >= SessionTime::duration::zero());
    Check(visit->Memory().inputs.size() <= 64);
    state = visit->State();
    memory = visit->HasAnswered() ? visit->Memory() : ProjectorMemory();
  }

 private:
  static void CheckState(const LiveState& state) {
    const bool isAsleep = state.power == PowerState::Standby;
    Check(!isAsleep || (!state.source && !state.blank && !state.mute && !state.freeze));
    Check(state.lamps.size() <= 8);
    for (const LampState& lamp : state.lamps) Check(lamp.hours >= 0 && lamp.hours <= UINT16_MAX);
    Check(state.filterHours.value_or(0) >= 0 && state.filterHours.value_or(0) <= UINT16_MAX);
  }

  void Happen(Visit& visit, SessionTime until) {
    now_ += std::chrono::milliseconds(1);
    switch (IsOver() ? 0 : Next() % 8) {
      case 0:
        now_ = std::max(now_, until);
        return;
      case 1:
        return visit.Connected(now_);
      case 2:
        return visit.NotConnected(static_cast<ConnectionState>(4 + Next() % 8), now_);
      case 3:
        return visit.Closed(now_);
      case 4:
        return visit.Received("PJLINK 0\r", now_);
      case 5:
        return visit.Received(Replies(), now_);
      case 6:
        return visit.Received(Lines(), now_);
      default: {
        const std::string_view piece = script_.substr(0, Next());
        script_.remove_prefix(std::min(piece.size(), script_.size()));
        return visit.Received(piece, now_);
      }
    }
  }

  /// On the wire, with values of the script.
  std::string Replies() {
    std::string bytes;
    while (const auto frame = frames_.Next()) {
      Wire::Frame reply{frame->sequence, Wire::Welcome{}};
      if (std::holds_alternative<Wire::Request>(frame->message)) {
        const int value = Next() << 8 | Next();
        reply.message = Wire::Reply{.result = 1, .value = static_cast<std::int16_t>(value)};
      }
      Wire::Append(bytes, reply);
    }
    return bytes;
  }

  /// Over PJLink, with a text of the script for each question.
  std::string Lines() {
    std::string replies;
    while (true) {
      const auto end = lines_.find('\r');
      if (end == std::string::npos) return replies;
      const auto mark = lines_.find('%');
      if (mark < end && mark + 6 < end) {
        const std::string_view text = script_.substr(0, Next() % 16);
        replies += lines_.substr(mark, 6) + '=' + std::string(text) + '\r';
        script_.remove_prefix(std::min(text.size(), script_.size()));
      }
      lines_.erase(0, end + 1);
    }
  }

  std::string_view script_;
  SessionTime now_{std::chrono::hours(1)};
  Wire::Decoder frames_;
  std::string lines_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Projector projector({reinterpret_cast<const char*>(data), size});
  const ProjectorAddress addresses[] = {PjLinkAddress{.host = "a", .password = {}},
                                        PjLinkAddress{.host = "a", .password = "secret"},
                                        TcpAddress{.host = "a"}, SerialAddress{.device = "a"}};
  FleetTarget target{.id = "a", .address = addresses[projector.Next() % std::size(addresses)]};
  if (projector.Next() % 2 != 0) {
    auto model = std::make_shared<ModelData>();
    model->MySourceList.count = 2;
    model->MySourceList.names[0] = MakeNameSlot("Video");
    model->MySourceList.firstValues[1] = 31;
    target.model = std::move(model);
  }
  LiveState state;
  ProjectorMemory memory;
  do {
    projector.Serve(target, state, memory);
  } while (!projector.IsOver());
  return 0;
}
