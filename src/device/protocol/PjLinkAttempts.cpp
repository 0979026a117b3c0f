#include "device/protocol/PjLinkAttempts.h"

namespace AdvancedControl {

void PjLinkAttempts::Start(SessionTime deadline, std::chrono::milliseconds pause) {
  deadline_ = deadline;
  pause_ = pause;
  problem_.reset();
}

std::optional<SessionTime> PjLinkAttempts::Fail(ConnectionState problem, SessionTime now) {
  const bool isUnknown = problem == ConnectionState::NameUnknown;
  // If an earlier attempt found the name, this look-up only ran out of time.
  if (!isUnknown || !problem_) problem_ = problem;
  const SessionTime next = now + pause_;
  if (isUnknown || next >= deadline_) return std::nullopt;
  pause_ *= 2;
  return next;
}

}  // namespace AdvancedControl
