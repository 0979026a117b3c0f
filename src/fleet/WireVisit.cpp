#include "fleet/WireVisit.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

static_assert(kAllStatusItems.front() == StatusItem::Power);

}  // namespace

WireVisit::WireVisit(WireSession::Medium medium, const FleetPolicy& policy, LiveState state,
                     ProjectorMemory memory, std::shared_ptr<const ModelData> model,
                     std::uint16_t sequence)
    : Visit(std::move(state), std::move(memory), std::move(model)),
      session_(medium, {.connect = policy.connect, .answer = policy.answer}, sequence) {
  std::ranges::copy_if(kAllStatusItems, std::back_inserter(asked_),
                       [this](StatusItem item) { return !Lacks(item); });
}

SessionStep WireVisit::Next(SessionTime now) {
  while (answers_ < asked_.size()) {
    if (!std::exchange(isAsking_, true)) {
      session_.Begin(ReadingOf(asked_[answers_]).Command(), now);
    }
    SessionStep step = session_.Next(now);
    if (step.kind == SessionStep::Kind::Send) TakeSending(now);
    if (step.kind != SessionStep::Kind::Finished) return step;
    TakeReply(now);
  }
  return {};
}

void WireVisit::TakeReply(SessionTime now) {
  isAsking_ = false;
  const PjtReply& reply = session_.Reply();
  if (!reply.answered) {
    for (; answers_ < asked_.size(); ++answers_) ForgetStatus(state_, asked_[answers_]);
    return;
  }
  TakeAnswering(now);
  const StatusItem item = asked_[answers_++];
  const Answer answer = AnswerTo(ReadingOf(item), reply);
  if (answer.accepted) {
    Take(item, answer.value);
  } else {
    ForgetStatus(state_, item);
  }
  SetLacks(item, !reply.offered);
  if (answers_ != 1) return;
  if (state_.power == PowerState::Standby) {
    asked_.resize(answers_);
    return;
  }
  std::vector<PjtCommand> rest;
  for (std::size_t i = answers_; i < asked_.size(); ++i) {
    rest.push_back(ReadingOf(asked_[i]).Command());
  }
  session_.Announce(rest);
}

}  // namespace AdvancedControl
