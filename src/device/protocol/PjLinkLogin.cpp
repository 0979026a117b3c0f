#include "device/protocol/PjLinkLogin.h"

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

std::optional<ConnectionState> PjLinkLogin::Take(std::string_view greeting) {
  const auto seed = PjLink::ParseGreeting(greeting);
  if (!seed) {
    return PjLink::SameWord(greeting, PjLink::kWrongPassword) ? ConnectionState::PasswordRequired
                                                              : ConnectionState::NotUnderstood;
  }
  proof_ = seed->empty() ? std::string() : PjLink::Digest(*seed, password_);
  hasGreeted_ = true;
  return std::nullopt;
}

}  // namespace AdvancedControl
