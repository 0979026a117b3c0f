#include "device/channels/PjLinkInputInquiry.h"

#include <algorithm>

namespace AdvancedControl {

std::optional<SourceList> PjLinkInputInquiry::Report() {
  isWanted_ = true;
  const std::lock_guard lock(mutex_);
  return reported_;
}

std::optional<PjLinkQuestion> PjLinkInputInquiry::NextQuestion(SessionTime now) const {
  return isWanted_ && now >= nextTry_ ? inputs_.Next() : std::nullopt;
}

bool PjLinkInputInquiry::Take(const PjLinkResult& result, SessionTime now) {
  if (!inputs_.Take(result)) {
    nextTry_ = now + pause_;
    pause_ = std::min(2 * pause_, longestPause_);
    return false;
  }
  if (!inputs_.Next()) {
    pause_ = firstPause_;
    Publish();
  }
  return true;
}

std::vector<PjLinkInput> PjLinkInputInquiry::AllInputs() const {
  return inputs_.Next() ? std::vector<PjLinkInput>() : inputs_.Known();
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
  rememberedClass_.reset();
}

void PjLinkInputInquiry::Publish() {
  const std::lock_guard lock(mutex_);
  reported_ = SourcesOf(inputs_.Known(), InputCodes::SharedNames);
}

}  // namespace AdvancedControl
