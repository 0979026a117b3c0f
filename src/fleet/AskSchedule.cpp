#include "fleet/AskSchedule.h"

#include <algorithm>

namespace AdvancedControl {

void AskSchedule::Begin(SessionTime now, const FleetPolicy& policy, Random& random) {
  begun_ = now;
  chance_ = std::uniform_real_distribution<double>(0, 1)(random);
  SetNext(policy.interval, policy);
}

void AskSchedule::Answered(const FleetPolicy& policy) {
  failures_ = 0;
  SetNext(PauseOf(policy), policy);
}

void AskSchedule::Unanswered(const FleetPolicy& policy) {
  ++failures_;
  SetNext(PauseOf(policy), policy);
}

void AskSchedule::Adapt(const FleetPolicy& policy) {
  const bool wasAsked = begun_ != SessionTime{};
  if (wasAsked) SetNext(PauseOf(policy), policy);
}

void AskSchedule::Hasten(SessionTime now, const FleetPolicy& policy) {
  const bool wasAsked = begun_ != SessionTime{};
  next_ = std::min(next_, wasAsked ? std::max(now, begun_ + policy.soonest) : now);
}

SessionTime::duration AskSchedule::PauseOf(const FleetPolicy& policy) const {
  const auto longest = std::max(policy.longestPause, policy.interval);
  auto pause = policy.interval;
  for (int i = 1; i < failures_ && pause < longest; ++i) pause *= 2;
  return std::min(pause, longest);
}

void AskSchedule::SetNext(SessionTime::duration pause, const FleetPolicy& policy) {
  const auto longer = std::chrono::duration<double>(pause) * policy.jitter * chance_;
  next_ = begun_ + pause + std::chrono::duration_cast<SessionTime::duration>(longer);
}

}  // namespace AdvancedControl
