#pragma once

#include <cstdint>
#include <string>

#include "Namespace.h"
#include "device/protocol/PjLinkExchange.h"
#include "device/protocol/PjLinkMapping.h"

namespace AdvancedControl {

/// A question to a projector that is not for a setting.
struct PjLinkQuestion {
  PjLinkClass protocolClass = PjLinkClass::First;
  std::string command{};
  std::string parameter = "?";
};

/// The result of a question.
struct PjLinkResult {
  enum class Kind : std::uint8_t {
    Text,
    None,    ///< The projector does not support the question; `text` is empty.
    NotNow,  ///< The projector does not answer it in its present state; `text` is empty.
    Lost,    ///< No answer came; `text` is empty.
  };

  Kind kind = Kind::Lost;
  std::string text{};  ///< UTF-8, without control characters.
  /// Of a lost answer: the projector has accepted a connection, and still did not answer. False if
  /// it could not be asked.
  bool wasAsked = false;
};

PjLinkResult ResultOf(const PjLinkAnswer& answer);

}  // namespace AdvancedControl
