#pragma once

#include <chrono>
#include <optional>

#include "Namespace.h"
#include "device/ConnectionState.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

/// The attempts to connect for one request: when to try again after a failure, and what the
/// failures mean. Use from one thread at a time.
class PjLinkAttempts {
 public:
  /// The first attempt starts now. All attempts end at `deadline`. `pause` is the time before the
  /// second attempt; it doubles before each further one.
  void Start(SessionTime deadline, std::chrono::milliseconds pause);
  SessionTime Deadline() const { return deadline_; }
  /// An attempt failed. Returns when to try again; nothing to give up.
  std::optional<SessionTime> Fail(ConnectionState problem, SessionTime now);
  /// Why the attempts failed.
  ConnectionState Problem() const { return problem_.value_or(ConnectionState::NotReachable); }

 private:
  SessionTime deadline_{};
  std::chrono::milliseconds pause_{};
  std::optional<ConnectionState> problem_;  ///< Of the last attempt.
};

}  // namespace AdvancedControl
