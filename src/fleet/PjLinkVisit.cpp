#include "fleet/PjLinkVisit.h"

#include <algorithm>

#include "fleet/PjLinkStatus.h"

namespace AdvancedControl {

namespace {

constexpr std::size_t kMostNames = 64;

}  // namespace

PjLinkVisit::PjLinkVisit(const PjLinkAddress& address, const FleetPolicy& policy, LiveState state,
                         ProjectorMemory memory, std::shared_ptr<const ModelData> model)
    : Visit(std::move(state), std::move(memory), std::move(model)),
      session_(address.password,
               {.connect = policy.connect, .answer = policy.answer, .pause = policy.connect / 4}) {
  if (memory_.protocolClass) session_.RememberClass(*memory_.protocolClass);
}

SessionStep PjLinkVisit::Next(SessionTime now) {
  while (!isFinished_) {
    SessionStep step = session_.Next(now);
    if (step.kind == SessionStep::Kind::Send) TakeSending(now);
    if (step.kind != SessionStep::Kind::Finished) return step;
    if (asking_ != Asking::Nothing) TakeResult(now);
    isFinished_ = isFinished_ || !Ask(now);
  }
  return {};
}

void PjLinkVisit::Connected(SessionTime) { session_.Connection().Connected(); }

void PjLinkVisit::NotConnected(ConnectionState problem, SessionTime now) {
  session_.Connection().NotConnected(problem, now);
}

void PjLinkVisit::Received(std::string_view bytes, SessionTime now) {
  session_.Connection().Received(bytes, now);
}

void PjLinkVisit::Closed(SessionTime now) { session_.Connection().Closed(now); }

bool PjLinkVisit::Ask(SessionTime now) {
  if (LacksName()) {
    if (const auto question = PjLinkInputs::NameOf(state_.source->number)) {
      asking_ = Asking::Name;
      session_.Begin(*question, now);
      return true;
    }
  }
  const auto questions = PjLinkStatus::Questions();
  const bool isAsleep = question_ > 0 && state_.power == PowerState::Standby;
  const auto lacks = [this](StatusItem item) { return Lacks(item); };
  while (question_ < questions.size() && std::ranges::all_of(questions[question_].items, lacks)) {
    ++question_;
  }
  if (isAsleep || question_ == questions.size()) return false;
  const PjLinkMapping& mapping = *questions[question_].mapping;
  asking_ = Asking::Status;
  session_.Begin(PjLinkQuestion{mapping.protocolClass, std::string(mapping.command)}, now);
  return true;
}

void PjLinkVisit::TakeResult(SessionTime now) {
  const PjLinkResult& result = session_.Result();
  memory_.protocolClass = session_.ProtocolClass();
  if (result.kind == PjLinkResult::Kind::Lost) return GiveUp();
  TakeAnswering(now);
  if (asking_ == Asking::Name) {
    TakeName(result.text);
  } else {
    TakeStatusText(result);
    ++question_;
  }
}

void PjLinkVisit::TakeStatusText(const PjLinkResult& result) {
  const PjLinkStatus::Question& question = PjLinkStatus::Questions()[question_];
  const bool isAnswer = result.kind == PjLinkResult::Kind::Text;
  if (isAnswer) PjLinkStatus::Take(state_, question, result.text, model_.get(), memory_.inputs);
  for (const StatusItem item : question.items) {
    if (!isAnswer) ForgetStatus(state_, item);
    SetLacks(item, result.kind == PjLinkResult::Kind::None);
  }
}

void PjLinkVisit::TakeName(const std::string& name) {
  PjLinkInput input = PjLinkInputs::Named(state_.source->number, name);
  // With its code, since the other inputs are not known.
  input.name = NameText(SourcesOf({input}, InputCodes::AllNames).names[0]);
  state_.source->name = input.name;
  if (memory_.inputs.size() < kMostNames) memory_.inputs.push_back(std::move(input));
}

void PjLinkVisit::GiveUp() {
  const auto questions = PjLinkStatus::Questions();
  for (std::size_t i = question_; i < questions.size(); ++i) {
    for (const StatusItem item : questions[i].items) ForgetStatus(state_, item);
  }
  isFinished_ = true;
}

}  // namespace AdvancedControl
