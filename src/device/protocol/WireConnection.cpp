#include "device/protocol/WireConnection.h"

namespace AdvancedControl {

void WireConnection::Start(SessionTime welcomeBy) {
  state_ = ConnectionState::Connecting;
  welcomeBy_ = welcomeBy;
  welcome_.reset();
  decoder_ = {};
}

void WireConnection::Opened(std::uint16_t hello) {
  isOpen_ = true;
  hello_ = hello;
  Wire::Append(unsent_, {.sequence = hello_, .message = Wire::Hello{}});
}

void WireConnection::Drop() {
  isDropped_ = true;
  isOpen_ = false;
  unsent_.clear();
}

std::optional<Wire::Frame> WireConnection::NextFrame() {
  while (auto frame = decoder_.Next()) {
    const auto* const welcome = std::get_if<Wire::Welcome>(&frame->message);
    if (!welcome) return frame;
    if (frame->sequence == hello_ && !welcome_) welcome_ = *welcome;
  }
  return std::nullopt;
}

}  // namespace AdvancedControl
