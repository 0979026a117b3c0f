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
  constexpr int kMostDoublings = 20;
  const int doublings = std::clamp(failures_ - 1, 0, kMostDoublings);
  return std::min<SessionTime::duration>(policy.interval * (std::int64_t{1} << doublings),
                                         std::max(policy.longestPause, policy.interval));
}

void AskSchedule::SetNext(SessionTime::duration pause, const FleetPolicy& policy) {
  const auto longer = std::chrono::duration<double>(pause) * policy.jitter * chance_;
  next_ = begun_ + pause + std::chrono::duration_cast<SessionTime::duration>(longer);
}

}  // namespace AdvancedControl
