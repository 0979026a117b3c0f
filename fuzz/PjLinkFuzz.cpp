// Any bytes as lines from a PJLink peer, at either end.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "device/PjLinkLine.h"
#include "fuzz/Check.h"
#include "simulator/PjLinkResponder.h"

namespace {

/// Accepts everything, and yields what it was set to.
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
  if (!line) return;
  Check(PjLink::Format(*line) == text);
  for (const auto value : {PjLink::PowerStatus, PjLink::ErrorStatus, PjLink::Blank, PjLink::Mute,
                           PjLink::Switch, PjLink::Hours, PjLink::LampHours}) {
    const int read = value(line->parameter).value_or(0);
    Check(read >= 0 && read <= UINT16_MAX);
  }
  for (const std::string& code : PjLink::InputCodes(line->parameter)) {
    const auto number = PjLink::InputNumber(code);
    Check(number && PjLink::InputCode(*number) == code);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
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
