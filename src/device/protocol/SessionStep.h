#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "Namespace.h"

namespace AdvancedControl {

/// The clock of sessions, which never goes back.
using SessionTime = std::chrono::steady_clock::time_point;

/// What the driver of a session has to do next. A session is a protocol without a socket and
/// without a clock: the driver owns both, performs each step and reports what happens.
struct SessionStep {
  enum class Kind : std::uint8_t {
    Finished,  ///< Nothing: the answer is available.
    Connect,   ///< Connect until `until` at the latest, and report the result.
    Send,      ///< Send `bytes`.
    Wait,      ///< Report events until `until`, then call `Next` again.
    Close,     ///< Close the connection.
  };

  Kind kind = Kind::Finished;
  SessionTime until{};
  std::string bytes{};
};

}  // namespace AdvancedControl
