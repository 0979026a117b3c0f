#include "app/host/InputAskingChannel.h"

#include <utility>

void ToldInputs::Put(const SourceList& inputs) {
  const std::lock_guard lock(mutex_);
  inputs_ = inputs;
}

std::optional<SourceList> ToldInputs::Take() {
  const std::lock_guard lock(mutex_);
  return std::exchange(inputs_, std::nullopt);
}

PjtReply InputAskingChannel::Execute(const PjtCommand& command) {
  if (asking_ == Asking::Next) {
    asking_ = Asking::Done;
    if (const auto description = inner_->Describe()) told_->Put(SourcesOf(description->inputs));
  }
  const PjtReply reply = inner_->Execute(command);
  if (asking_ == Asking::NotYet && reply.answered && reply.offered) asking_ = Asking::Next;
  return reply;
}
