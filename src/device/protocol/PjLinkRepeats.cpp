#include "device/protocol/PjLinkRepeats.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

/// Pause before the first repetition; doubled for each further one, up to the longest pause.
constexpr std::chrono::milliseconds kFirstPause{100};
constexpr std::chrono::milliseconds kLongestPause{1000};

}  // namespace

void PjLinkRepeats::Start(SessionTime until) {
  until_ = until;
  pause_ = kFirstPause;
}

SessionTime PjLinkRepeats::Next(SessionTime now) {
  const SessionTime next = std::min<SessionTime>(now + pause_, until_.value_or(now));
  pause_ = std::min(2 * pause_, kLongestPause);
  return next;
}

}  // namespace AdvancedControl
