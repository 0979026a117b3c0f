#include "device/protocol/PjLinkSession.h"

#include <algorithm>
#include <utility>

#include <QString>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

constexpr std::chrono::seconds kFresh{1};
constexpr int kMostLost = 1;
/// Pause before the first repetition; doubled for each further one, up to the longest pause.
constexpr std::chrono::milliseconds kFirstPause{100};
constexpr std::chrono::milliseconds kLongestPause{1000};

bool IsError(std::string_view answer) {
  return answer.size() == 4 && PjLink::SameWord(answer.substr(0, 3), "ERR");
}

std::string Printable(const std::string& text) {
  QString printable = QString::fromStdString(text);
  printable.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return printable.toStdString();
}

}  // namespace

void PjLinkSession::RememberClass(char protocolClass) {
  class_ = protocolClass;
  isClassRemembered_ = true;
}

void PjLinkSession::Begin(const PjtCommand& command, PjLinkTime now) {
  command_ = command;
  mapping_ = PjLinkMapping::Find(command);
  const auto parameter = mapping_ ? mapping_->parameter(command.first) : std::nullopt;
  if (!parameter) {
    PjtReply reply = Refused();
    reply.offered = mapping_ != nullptr;
    return Finish(reply);
  }
  parameter_ = *parameter;
  Reset();
  if (!AnswerFromKept(now)) BeginWork(mapping_->protocolClass, now);
}

void PjLinkSession::Begin(PjLinkQuestion question, PjLinkTime now) {
  mapping_ = nullptr;
  result_ = {};
  question_ = std::move(question);
  Reset();
  BeginWork(question_.protocolClass, now);
}

PjLinkStep PjLinkSession::Next(PjLinkTime now) {
  while (stage_ != Stage::Idle) {
    PjLinkStep step = connection_.Next(now);
    if (step.kind != PjLinkStep::Kind::Finished) return step;
    if (stage_ != Stage::Pausing) {
      Handle(connection_.Answer(), now);
    } else if (now < resumeAt_) {
      return {.kind = PjLinkStep::Kind::Wait, .until = resumeAt_};
    } else {
      Resume(now);
    }
  }
  return connection_.Next(now);  // the connection may have to be closed
}

void PjLinkSession::Reset() {
  lostAnswers_ = 0;
  askedForPower_ = false;
  gotGarbledValue_ = false;
  askUntil_.reset();
  pause_ = kFirstPause;
}

void PjLinkSession::BeginWork(PjLinkClass needed, PjLinkTime now) {
  if (needed != PjLinkClass::First && !class_) {
    Ask(Stage::Class, "CLSS", PjLink::kQuery, now);
  } else {
    AskForWork(now);
  }
}

/// The class is known now, unless the projector does not report it.
void PjLinkSession::AskForWork(PjLinkTime now) {
  const PjLinkClass needed = mapping_ ? mapping_->protocolClass : question_.protocolClass;
  if (needed == PjLinkClass::Second && class_ == '1') {
    result_.kind = PjLinkResult::Kind::None;
    PjtReply reply = Refused();
    reply.offered = false;
    return Finish(reply);
  }
  if (mapping_) {
    Ask(Stage::Command, mapping_->command, parameter_, now);
  } else {
    Ask(Stage::Question, question_.command, question_.parameter, now);
  }
}

char PjLinkSession::ClassOf(PjLinkClass needed) const {
  if (needed == PjLinkClass::First) return '1';
  return class_.value_or(needed == PjLinkClass::Second ? '2' : '1');
}

void PjLinkSession::Ask(Stage stage, std::string_view command, std::string_view parameter,
                        PjLinkTime now) {
  stage_ = stage;
  const bool isOwn = stage == Stage::Class || stage == Stage::Power;
  const PjLinkClass needed = isOwn      ? PjLinkClass::First
                             : mapping_ ? mapping_->protocolClass
                                        : question_.protocolClass;
  connection_.Ask({ClassOf(needed), std::string(command), std::string(parameter)}, AnswerTime(),
                  now);
}

void PjLinkSession::AskAfterPause(Stage stage, PjLinkTime now) {
  resumeAt_ = std::min(now + pause_, *askUntil_);
  pause_ = std::min(2 * pause_, PjLinkLimits::Time(kLongestPause));
  resumedStage_ = stage;
  stage_ = Stage::Pausing;
}

void PjLinkSession::Resume(PjLinkTime now) {
  if (resumedStage_ == Stage::Confirm) {
    Ask(Stage::Confirm, mapping_->command, PjLink::kQuery, now);
  } else {
    AskForWork(now);
  }
}

void PjLinkSession::Handle(const PjLinkAnswer& answer, PjLinkTime now) {
  switch (stage_) {
    case Stage::Class:
      return HandleClass(answer, now);
    case Stage::Power:
      return HandlePower(answer, now);
    case Stage::Confirm:
      return HandleConfirmation(answer, now);
    case Stage::Question:
      return HandleQuestionAnswer(answer, now);
    default:
      if (answer.parameter && IsRead(command_.operation)) {
        Keep(*answer.parameter, keepsLast_ ? nullptr : mapping_->value, now);
      }
      return HandleCommand(answer, now);
  }
}

void PjLinkSession::HandleClass(const PjLinkAnswer& answer, PjLinkTime now) {
  if (!answer.parameter) {
    if (answer.sent && lostAnswers_++ < kMostLost)
      return Ask(Stage::Class, "CLSS", PjLink::kQuery, now);
    PjtReply reply = Refused();
    reply.answered = false;
    reply.unsent = true;  // the command itself was not sent
    return Finish(reply);
  }
  const bool isReported =
      !IsError(*answer.parameter) || PjLink::SameWord(*answer.parameter, PjLink::kUndefined);
  if (isReported) {
    class_ = PjLink::ProtocolClass(*answer.parameter);
    isClassRemembered_ = false;
  }
  AskForWork(now);
}

void PjLinkSession::HandleCommand(const PjLinkAnswer& answer, PjLinkTime now) {
  PjtReply reply = Refused();
  if (!answer.parameter) {
    // The projector may have been replaced since the class was remembered, or may be replaced
    // before the next connection.
    if (answer.sent == isClassRemembered_) class_.reset();
    reply.answered = false;
    reply.unsent = !answer.sent;
    return Finish(reply);
  }
  if (PjLink::SameWord(*answer.parameter, PjLink::kNotNow)) return HandleNotNow(now);
  if (PjLink::SameWord(*answer.parameter, PjLink::kUndefined)) {
    if (mapping_->protocolClass != PjLinkClass::First && std::exchange(isClassRemembered_, false)) {
      class_.reset();
      return BeginWork(mapping_->protocolClass, now);
    }
    reply.offered = false;
    return Finish(reply);
  }
  if (IsRead(command_.operation)) return HandleValue(*answer.parameter, now);
  if (!PjLink::SameWord(*answer.parameter, PjLink::kDone)) return Finish(reply);
  reply_ = {.result = AcceptedResult(command_.operation)};
  if (mapping_->value == nullptr) return Finish(reply_);
  askUntil_ = now + AnswerTime();
  pause_ = kFirstPause;
  Ask(Stage::Confirm, mapping_->command, PjLink::kQuery, now);
}

void PjLinkSession::HandleValue(const std::string& parameter, PjLinkTime now) {
  const auto value = mapping_->value(parameter);
  // A garbled value is requested again once.
  if (!value && !IsError(parameter) && !std::exchange(gotGarbledValue_, true))
    return AskForWork(now);
  if (!value) return Finish(Refused());
  KeepPower(parameter, now);
  Finish(
      {.result = AcceptedResult(command_.operation), .value = static_cast<std::int16_t>(*value)});
}

/// Handles `ERR3`.
void PjLinkSession::HandleNotNow(PjLinkTime now) {
  if (!askUntil_) askUntil_ = now + AnswerTime();
  if (!std::exchange(askedForPower_, true)) {
    const bool isKnown = powerAt_ && now - *powerAt_ < kFresh;
    if (!isKnown) return Ask(Stage::Power, "POWR", PjLink::kQuery, now);
    if (CannotDoItNow()) askUntil_ = now;
  }
  if (now < *askUntil_) return AskAfterPause(Stage::Command, now);
  PjtReply reply = Refused();
  reply.busy = true;
  Finish(reply);
}

/// Whether the power state, which was just reported, rules out the command.
bool PjLinkSession::CannotDoItNow() const {
  const bool isOwn = mapping_->command == "POWR";  // a power command is possible in standby
  return (power_ == PowerState::Standby && !isOwn) ||
         (power_ != PowerState::On && IsRead(command_.operation));
}

void PjLinkSession::HandlePower(const PjLinkAnswer& answer, PjLinkTime now) {
  const auto power = answer.parameter ? PjLink::Power(*answer.parameter) : std::nullopt;
  if (power) {
    power_ = power;
    powerAt_ = now;
    kept_["POWR"] = {*answer.parameter, nullptr, now};
  }
  if (!answer.parameter || (power && CannotDoItNow())) askUntil_ = now;
  HandleNotNow(now);
}

void PjLinkSession::HandleConfirmation(const PjLinkAnswer& answer, PjLinkTime now) {
  const auto value = answer.parameter ? mapping_->value(*answer.parameter) : std::nullopt;
  if (value) KeepPower(*answer.parameter, now);
  if (value == PjLinkTarget(command_)) {
    Keep(*answer.parameter, nullptr, now);
    return Finish(reply_);
  }
  // If the projector does not support the question, the change cannot be confirmed.
  const bool isSilent = answer.parameter && PjLink::SameWord(*answer.parameter, PjLink::kUndefined);
  if (isSilent) return Finish(reply_);
  if (now < *askUntil_) return AskAfterPause(Stage::Confirm, now);
  reply_.pending = true;
  Finish(reply_);
}

void PjLinkSession::HandleQuestionAnswer(const PjLinkAnswer& answer, PjLinkTime now) {
  using Kind = PjLinkResult::Kind;
  if (!answer.parameter) {
    if (answer.sent && lostAnswers_++ < kMostLost) return AskForWork(now);
    result_ = {};
  } else if (!IsError(*answer.parameter)) {
    result_ = {Kind::Text, Printable(*answer.parameter)};
  } else {
    const bool isNotNow = PjLink::SameWord(*answer.parameter, PjLink::kNotNow);
    result_ = {isNotNow ? Kind::NotNow : Kind::None};
  }
  Finish({});
}

bool PjLinkSession::AnswerFromKept(PjLinkTime now) {
  if (!IsRead(command_.operation)) {
    kept_.clear();
    powerAt_.reset();
    return false;
  }
  const auto kept = kept_.extract(mapping_->command);
  if (!kept || now - kept.mapped().time >= kFresh || kept.mapped().reader == mapping_->value) {
    return false;
  }
  HandleCommand({.parameter = kept.mapped().parameter, .sent = true}, now);
  return true;
}

void PjLinkSession::Keep(const std::string& parameter, Reader reader, PjLinkTime now) {
  kept_[mapping_->command] = {parameter, reader, now};
}

void PjLinkSession::KeepPower(const std::string& parameter, PjLinkTime now) {
  if (mapping_->command != "POWR") return;
  power_ = PjLink::Power(parameter);
  powerAt_ = now;
}

void PjLinkSession::Finish(const PjtReply& reply) {
  stage_ = Stage::Idle;
  keepsLast_ = false;
  reply_ = reply;
}

}  // namespace AdvancedControl
