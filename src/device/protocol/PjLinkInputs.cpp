#include "device/protocol/PjLinkInputs.h"

#include <algorithm>
#include <array>
#include <utility>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

constexpr std::size_t kMostInputs = SourceList::kCapacity;
constexpr std::size_t kLongestName =
    128;  // in bytes; some projectors send more than the standard allows

std::string NameByCode(const std::string& code) {
  constexpr std::array kKinds{"RGB", "Video", "Digital", "Storage", "Network", "Internal"};
  return std::string(kKinds.at(static_cast<std::size_t>(code[0] - '1'))) + ' ' + code[1];
}

/// The name, cut if necessary, followed by the input's two characters.
std::string WithCode(const PjLinkInput& input) {
  const std::string behind = " (" + PjLink::InputCode(input.number).value_or("?") + ')';
  return std::string(CutText(input.name, NameSlot{}.size() - behind.size())) + behind;
}

}  // namespace

SourceList SourcesOf(const std::vector<PjLinkInput>& inputs, InputCodes codes) {
  SourceList sources;
  for (const PjLinkInput& input : inputs) {
    if (sources.count == SourceList::kCapacity) break;
    const auto slot = MakeNameSlot(input.name);
    const auto isSame = [&](const PjLinkInput& other) { return MakeNameSlot(other.name) == slot; };
    const bool hasCode = codes == InputCodes::AllNames || std::ranges::count_if(inputs, isSame) > 1;
    const auto next = static_cast<std::size_t>(sources.count++);
    sources.names[next] = hasCode ? MakeNameSlot(WithCode(input)) : slot;
    sources.firstValues[next] = input.number;
    sources.secondValues[next] = input.number;
  }
  return sources;
}

std::optional<PjLinkQuestion> PjLinkInputs::Next() const {
  if (codes_.empty()) return PjLinkQuestion{PjLinkClass::Either, "INST"};
  const auto code = NextCode();
  return code ? NameOf(*PjLink::InputNumber(*code)) : std::nullopt;
}

bool PjLinkInputs::Take(const PjLinkResult& result) {
  const bool isTold =
      result.kind == PjLinkResult::Kind::Text || result.kind == PjLinkResult::Kind::None;
  if (!isTold) return false;
  if (codes_.empty()) {
    codes_ = PjLink::InputCodes(result.text);
    return !codes_.empty();
  }
  NameNext(result.text);
  return true;
}

void PjLinkInputs::SkipName() {
  const auto code = IsListKnown() ? NextCode() : std::nullopt;
  if (!code) return;
  NameNext({});
  skipped_.push_back(*PjLink::InputNumber(*code));
}

PjLinkInputs::Asked PjLinkInputs::AskForAll(
    const std::function<PjLinkResult(const PjLinkQuestion&)>& ask) {
  Asked asked;
  while (const auto question = Next()) {
    const PjLinkResult result = ask(*question);
    if (Take(result)) continue;
    asked.isComplete = false;
    asked.isLost = asked.isLost || result.kind == PjLinkResult::Kind::Lost;
    if (!IsListKnown()) break;
    SkipName();
  }
  return asked;
}

void PjLinkInputs::Remember(std::vector<PjLinkInput> inputs) {
  codes_.clear();
  for (const PjLinkInput& input : inputs) {
    if (auto code = PjLink::InputCode(input.number)) codes_.push_back(std::move(*code));
  }
  inputs_ = std::move(inputs);
  skipped_.clear();
  again_ = 0;
}

std::optional<PjLinkQuestion> PjLinkInputs::NameOf(int number) {
  const auto code = PjLink::InputCode(number);
  if (!code) return std::nullopt;
  return PjLinkQuestion{PjLinkClass::Second, "INNM", std::string(PjLink::kQuery) + *code};
}

PjLinkInput PjLinkInputs::Named(int number, const std::string& name) {
  const auto code = PjLink::InputCode(number);
  return {number,
          name.empty() && code ? NameByCode(*code) : std::string(CutText(name, kLongestName))};
}

/// The input to ask for next; nothing if all are known.
std::optional<std::string> PjLinkInputs::NextCode() const {
  if (again_ > 0) return PjLink::InputCode(skipped_.front());
  if (inputs_.size() < std::min(codes_.size(), kMostInputs)) return codes_[inputs_.size()];
  const auto isPlaying = [this](const PjLinkInput& input) { return input.number == present_; };
  return std::ranges::any_of(inputs_, isPlaying) ? std::nullopt : PjLink::InputCode(present_);
}

/// Adds the input that `Next` asks for, if any, or names it if it was skipped before.
void PjLinkInputs::NameNext(const std::string& name) {
  const auto code = NextCode();
  if (!code) return;
  const PjLinkInput input = Named(*PjLink::InputNumber(*code), name);
  if (again_ > 0) {
    --again_;
    skipped_.erase(skipped_.begin());
    std::ranges::replace(inputs_, input.number, input, &PjLinkInput::number);
    return;
  }
  if (inputs_.size() == kMostInputs) {
    std::erase(skipped_, inputs_.back().number);
    inputs_.pop_back();
  }
  inputs_.push_back(input);
}

}  // namespace AdvancedControl
