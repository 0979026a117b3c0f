#include "device/protocol/PjLinkExecution.h"

#include <utility>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

constexpr std::string_view kPower = "POWR";

PjtReply Refusal(const PjtCommand& command) { return {.result = RefusedResult(command.operation)}; }

}  // namespace

PjLinkNextRequest PjLinkExecution::Begin(const PjtCommand& command,
                                         std::chrono::milliseconds answerTime,
                                         PjLinkKnownClass& known, SessionTime now) {
  command_ = command;
  mapping_ = PjLinkMapping::Find(command);
  const auto parameter = mapping_ ? mapping_->parameter(command.first) : std::nullopt;
  if (!parameter) {
    PjtReply reply = Refusal(command_);
    reply.offered = mapping_ != nullptr;
    return Finish(reply);
  }
  parameter_ = *parameter;
  answerTime_ = answerTime;
  askedForPower_ = false;
  gotGarbledValue_ = false;
  repeats_.Reset();
  if (!IsRead(command.operation)) {
    reports_.Outdate();
  } else if (auto kept = reports_.Take(mapping_->command, mapping_->value, now)) {
    return HandleCommand({.parameter = std::move(*kept), .sent = true}, known, now);
  }
  PjLinkWorkRequest request = Ask(Stage::Command);
  request.mayAskClass = true;
  return request;
}

PjLinkNextRequest PjLinkExecution::Handle(const PjLinkAnswer& answer, PjLinkKnownClass& known,
                                          SessionTime now) {
  switch (stage_) {  // unreachable: there is a case for every stage
    case Stage::Power:
      return HandlePower(answer, now);
    case Stage::Confirmation:
      return HandleConfirmation(answer, now);
    case Stage::Command:
      break;
  }
  if (answer.parameter && IsRead(command_.operation)) {
    const PjLinkReports::Reader reader = keepsNext_ ? nullptr : mapping_->value;
    reports_.Keep(mapping_->command, *answer.parameter, reader, now);
  }
  return HandleCommand(answer, known, now);
}

PjLinkNextRequest PjLinkExecution::RefuseAsNotOffered() {
  PjtReply reply = Refusal(command_);
  reply.offered = false;
  return Finish(reply);
}

PjLinkNextRequest PjLinkExecution::FinishUnsent() {
  PjtReply reply = Refusal(command_);
  reply.answered = false;
  reply.unsent = true;
  return Finish(reply);
}

PjLinkWorkRequest PjLinkExecution::Ask(Stage stage) {
  stage_ = stage;
  if (stage == Stage::Power) {
    return {.command = std::string(kPower), .parameter = std::string(PjLink::kQuery)};
  }
  return {.protocolClass = mapping_->protocolClass,
          .command = std::string(mapping_->command),
          .parameter = stage == Stage::Command ? parameter_ : std::string(PjLink::kQuery)};
}

PjLinkWorkRequest PjLinkExecution::AskAfterPause(Stage stage, SessionTime now) {
  PjLinkWorkRequest request = Ask(stage);
  request.notBefore = repeats_.Next(now);
  return request;
}

PjLinkNextRequest PjLinkExecution::HandleCommand(const PjLinkAnswer& answer,
                                                 PjLinkKnownClass& known, SessionTime now) {
  PjtReply reply = Refusal(command_);
  if (!answer.parameter) {
    known.HandleSilence(answer.sent);
    reply.answered = false;
    reply.unsent = !answer.sent;
    return Finish(reply);
  }
  if (PjLink::SameWord(*answer.parameter, PjLink::kNotNow)) return HandleNotNow(now);
  if (PjLink::SameWord(*answer.parameter, PjLink::kUndefined)) {
    const bool isOfEveryClass = mapping_->protocolClass == PjLinkClass::First;
    if (isOfEveryClass || !known.HandleUnknownCommand()) return RefuseAsNotOffered();
    PjLinkWorkRequest again = Ask(Stage::Command);
    again.mayAskClass = true;
    return again;
  }
  if (IsRead(command_.operation)) return HandleValue(*answer.parameter, now);
  if (!PjLink::SameWord(*answer.parameter, PjLink::kDone)) return Finish(reply);
  reply_ = {.result = AcceptedResult(command_.operation)};
  if (mapping_->value == nullptr) return Finish(reply_);
  repeats_.Start(now + answerTime_);
  return Ask(Stage::Confirmation);
}

PjLinkNextRequest PjLinkExecution::HandleValue(const std::string& parameter, SessionTime now) {
  const auto value = mapping_->value(parameter);
  if (!value) {
    // A garbled value is requested again once.
    const bool isGarbled = !PjLink::IsError(parameter);
    if (isGarbled && !std::exchange(gotGarbledValue_, true)) return Ask(Stage::Command);
    return Finish(Refusal(command_));
  }
  if (IsForPower()) reports_.KeepPower(parameter, now);
  return Finish(
      {.result = AcceptedResult(command_.operation), .value = static_cast<std::int16_t>(*value)});
}

/// Handles `ERR3`.
PjLinkNextRequest PjLinkExecution::HandleNotNow(SessionTime now) {
  if (!repeats_.HasStarted()) repeats_.Start(now + answerTime_);
  if (!std::exchange(askedForPower_, true)) {
    if (!reports_.IsPowerFresh(now)) return Ask(Stage::Power);
    if (CannotDoItNow()) repeats_.End(now);
  }
  if (repeats_.HasTime(now)) return AskAfterPause(Stage::Command, now);
  PjtReply reply = Refusal(command_);
  reply.busy = true;
  return Finish(reply);
}

PjLinkNextRequest PjLinkExecution::HandlePower(const PjLinkAnswer& answer, SessionTime now) {
  const bool isPower = answer.parameter && PjLink::Power(*answer.parameter);
  if (isPower) {
    reports_.KeepPower(*answer.parameter, now);
    reports_.Keep(kPower, *answer.parameter, nullptr, now);
  }
  if (!answer.parameter || (isPower && CannotDoItNow())) repeats_.End(now);
  return HandleNotNow(now);
}

PjLinkNextRequest PjLinkExecution::HandleConfirmation(const PjLinkAnswer& answer, SessionTime now) {
  const auto value = answer.parameter ? mapping_->value(*answer.parameter) : std::nullopt;
  if (value && IsForPower()) reports_.KeepPower(*answer.parameter, now);
  if (value == PjLinkTarget(command_)) {
    reports_.Keep(mapping_->command, *answer.parameter, nullptr, now);
    return Finish(reply_);
  }
  // If the projector does not support the question, the change cannot be confirmed.
  const bool isSilent = answer.parameter && PjLink::SameWord(*answer.parameter, PjLink::kUndefined);
  if (isSilent) return Finish(reply_);
  if (repeats_.HasTime(now)) return AskAfterPause(Stage::Confirmation, now);
  reply_.pending = true;
  return Finish(reply_);
}

bool PjLinkExecution::IsForPower() const { return mapping_->command == kPower; }

/// Whether the power state, which was just reported, rules out the command.
bool PjLinkExecution::CannotDoItNow() const {
  const auto power = reports_.Power();  // a power command is possible in standby
  return (power == PowerState::Standby && !IsForPower()) ||
         (power != PowerState::On && IsRead(command_.operation));
}

PjLinkNextRequest PjLinkExecution::Finish(const PjtReply& reply) {
  keepsNext_ = false;
  reply_ = reply;
  return std::nullopt;
}

}  // namespace AdvancedControl
