#include "device/channels/PjLinkInputInquiry.h"

#include <algorithm>

namespace AdvancedControl {

namespace {

constexpr int kMostUnanswered = 2;  // names

}  // namespace

std::optional<SourceList> PjLinkInputInquiry::Report() {
  isWanted_ = true;
  const std::lock_guard lock(mutex_);
  return reported_;
}

std::optional<PjLinkQuestion> PjLinkInputInquiry::NextQuestion(SessionTime now) const {
  return isWanted_ && now >= nextTry_ ? inputs_.Next() : std::nullopt;
}

void PjLinkInputInquiry::Take(const PjLinkResult& result, SessionTime now) {
  if (!inputs_.Take(result)) {
    const bool isAway = result.kind == PjLinkResult::Kind::Lost && !result.wasAsked;
    if (isAway || !inputs_.IsListKnown()) return Pause(now);
    SkipName(result.kind);
  }
  if (inputs_.Next()) return;
  Publish();
  if (inputs_.IsAnySkipped() && unanswered_ == 0) {
    inputs_.AskSkippedAgain();
    Pause(now);
  } else {
    pause_ = firstPause_;
  }
}

void PjLinkInputInquiry::SkipName(PjLinkResult::Kind reason) {
  inputs_.SkipName();
  if (reason != PjLinkResult::Kind::NotNow) ++unanswered_;
  while (unanswered_ >= kMostUnanswered && inputs_.Next()) inputs_.SkipName();
}

void PjLinkInputInquiry::Pause(SessionTime now) {
  nextTry_ = now + pause_;
  pause_ = std::min(2 * pause_, longestPause_);
}

std::vector<PjLinkInput> PjLinkInputInquiry::AllInputs() const {
  return unanswered_ > 0 || inputs_.Next() ? std::vector<PjLinkInput>() : inputs_.Known();
}

void PjLinkInputInquiry::Remember(const std::vector<PjLinkInput>& inputs,
                                  std::optional<char> protocolClass) {
  rememberedClass_ = protocolClass;
  if (inputs.empty()) return;
  inputs_.Remember(inputs);
  Publish();
}

void PjLinkInputInquiry::CheckClass(std::optional<char> protocolClass) {
  if (!rememberedClass_ || !protocolClass || protocolClass == rememberedClass_) return;
  inputs_.Forget();
  unanswered_ = 0;
  rememberedClass_.reset();
}

void PjLinkInputInquiry::Publish() {
  const std::lock_guard lock(mutex_);
  reported_ = SourcesOf(inputs_.Known(), InputCodes::SharedNames);
}

}  // namespace AdvancedControl
