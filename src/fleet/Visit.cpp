#include "fleet/Visit.h"

namespace AdvancedControl {

SessionTime::duration Visit::AnswerTime() const {
  return sent_ && firstAnswer_ ? *firstAnswer_ - *sent_ : SessionTime::duration::zero();
}

void Visit::TakeSending(SessionTime now) {
  if (!firstAnswer_) sent_ = now;
}

void Visit::TakeAnswering(SessionTime now) {
  if (!firstAnswer_) firstAnswer_ = now;
}

}  // namespace AdvancedControl
