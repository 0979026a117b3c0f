#include "app/host/InputAskingChannel.h"

#include <algorithm>
#include <utility>

namespace {

// Of the time that the dialog waits for a command; a last exchange and the command come on top.
constexpr std::chrono::milliseconds kShare{400};
// One in standby may tell its inputs only once it is on.
constexpr std::chrono::seconds kLongestPause{120};

}  // namespace

void ToldInputs::Put(const SourceList& inputs) {
  const std::lock_guard lock(mutex_);
  inputs_ = inputs;
}

std::optional<SourceList> ToldInputs::Take() {
  const std::lock_guard lock(mutex_);
  return std::exchange(inputs_, std::nullopt);
}

PjtReply InputAskingChannel::Execute(const PjtCommand& command) {
  // A change is not kept waiting.
  if (isAnswering_ && !isDone_ && IsRead(command.operation) && Clock::now() >= nextTry_) AskOn();
  const PjtReply reply = inner_->Execute(command);
  if (reply.offered) isAnswering_ = reply.answered;
  return reply;
}

void InputAskingChannel::AskOn() {
  const auto end = Clock::now() + kShare;
  do {
    if (!AskNext()) {
      nextTry_ = Clock::now() + pause_;
      pause_ = std::min(2 * pause_, kLongestPause);
      return;
    }
  } while (!isDone_ && Clock::now() < end);
}

bool InputAskingChannel::AskNext() {
  if (codes_.empty()) {
    codes_ = inner_->InputCodes().value_or(std::vector<std::string>());
    return !codes_.empty();
  }
  auto input = inner_->Input(codes_[inputs_.size()]);
  if (!input) return false;
  inputs_.push_back(std::move(*input));
  isDone_ = inputs_.size() == codes_.size();
  if (isDone_) told_->Put(SourcesOf(inputs_));
  return true;
}
