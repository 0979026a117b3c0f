#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "Namespace.h"

namespace AdvancedControl {

/// The clock of sessions, which never goes back.
using SessionTime = std::chrono::steady_clock::time_point;

/// What the driver of a session has to do next. A session is a protocol without a socket and
/// without a clock: the driver owns both, does each step, and passes on what happens.
struct SessionStep {
  enum class Kind : std::uint8_t {
    Finished,  ///< Nothing: the answer is there.
    Connect,   ///< Connect, and say what came of it; nobody waits longer than `until`.
    Send,      ///< Send `bytes`.
    Wait,      ///< Pass on what happens until `until`, then ask again what is next.
    Close,     ///< Close the connection.
  };

  Kind kind = Kind::Finished;
  SessionTime until{};
  std::string bytes{};
};

}  // namespace AdvancedControl
