#include "fleet/PjLinkVisit.h"

#include <algorithm>
#include <span>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

constexpr std::size_t kMostNames = 64;

/// A question, and the items that its answer tells.
struct StatusQuestion {
  const PjLinkMapping* mapping = nullptr;
  std::vector<StatusItem> items{};
};

/// The power state's is the first.
std::span<const StatusQuestion> StatusQuestions() {
  static const auto kQuestions = [] {
    std::vector<StatusQuestion> questions;
    for (const StatusItem item : kAllStatusItems) {
      const PjLinkMapping* const mapping = PjLinkMapping::Find(ReadingOf(item).Command());
      if (mapping == nullptr) continue;
      const auto same = std::ranges::find(questions, mapping->command, [](const auto& question) {
        return question.mapping->command;
      });
      if (same == questions.end()) {
        questions.push_back({mapping, {item}});
      } else {
        same->items.push_back(item);
      }
    }
    return questions;
  }();
  return kQuestions;
}

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
    if (asking_ != Asking::Nothing) TakeTold(now);
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
  const auto questions = StatusQuestions();
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

void PjLinkVisit::TakeTold(SessionTime now) {
  const PjLinkResult& told = session_.Result();
  memory_.protocolClass = session_.ProtocolClass();
  if (told.kind == PjLinkResult::Kind::Lost) return GiveUp();
  TakeAnswering(now);
  if (asking_ == Asking::Name) {
    TakeName(told.text);
  } else {
    TakeStatusText(told);
    ++question_;
  }
}

void PjLinkVisit::TakeStatusText(const PjLinkResult& told) {
  const StatusQuestion& question = StatusQuestions()[question_];
  for (const StatusItem item : question.items) {
    const auto value = PjLinkMapping::Find(ReadingOf(item).Command())->value(told.text);
    if (told.kind == PjLinkResult::Kind::Text && value) {
      Take(item, *value);
    } else {
      ForgetStatus(state_, item);
    }
    SetLacks(item, told.kind == PjLinkResult::Kind::None);
  }
  if (told.kind != PjLinkResult::Kind::Text) return;
  // What PJLink tells beyond a device value.
  switch (question.items.front()) {
    case StatusItem::Power:
      if (const auto power = PjLink::Power(told.text)) TakePower(state_, *power);
      break;
    case StatusItem::Error:
      state_.problems = PjLink::ErrorGrades(told.text);
      break;
    case StatusItem::LampTime:
      if (auto lamps = PjLink::Lamps(told.text); !lamps.empty()) state_.lamps = std::move(lamps);
      break;
    case StatusItem::Source: {
      if (!LacksName()) break;
      const auto known =
          std::ranges::find(memory_.inputs, state_.source->number, &PjLinkInput::number);
      if (known != memory_.inputs.end()) state_.source->name = known->name;
      break;
    }
    default:
      break;
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
  const auto questions = StatusQuestions();
  for (std::size_t i = question_; i < questions.size(); ++i) {
    for (const StatusItem item : questions[i].items) ForgetStatus(state_, item);
  }
  isFinished_ = true;
}

}  // namespace AdvancedControl
