#include "device/protocol/PjLinkSession.h"

#include <utility>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

void PjLinkSession::RememberClass(char protocolClass) { class_.Remember(protocolClass); }

void PjLinkSession::Begin(const PjtCommand& command, PjLinkTime now) {
  isQuestion_ = false;
  hasRepeated_ = false;
  Continue(execution_.Begin(command, answerTime_, class_, now), now);
}

void PjLinkSession::Begin(PjLinkQuestion question, PjLinkTime now) {
  isQuestion_ = true;
  hasRepeated_ = false;
  result_ = {};
  Continue(PjLinkWorkRequest{.protocolClass = question.protocolClass,
                             .mayAskClass = true,
                             .command = std::move(question.command),
                             .parameter = std::move(question.parameter)},
           now);
}

PjLinkStep PjLinkSession::Next(PjLinkTime now) {
  while (stage_ != Stage::Idle) {
    PjLinkStep step = connection_.Next(now);
    if (step.kind != PjLinkStep::Kind::Finished) return step;
    if (stage_ != Stage::Pausing) {
      Handle(connection_.Answer(), now);
    } else if (now < request_.notBefore) {
      return {.kind = PjLinkStep::Kind::Wait, .until = request_.notBefore};
    } else {
      Ask(now);
    }
  }
  return connection_.Next(now);  // the connection may have to be closed
}

void PjLinkSession::Continue(PjLinkNextRequest request, PjLinkTime now) {
  stage_ = Stage::Idle;
  if (!request) return;
  request_ = std::move(*request);
  if (now < request_.notBefore) {
    stage_ = Stage::Pausing;
  } else {
    Ask(now);
  }
}

/// Sends the request, or before it the question for the class.
void PjLinkSession::Ask(PjLinkTime now) {
  if (request_.mayAskClass && class_.IsMissingFor(request_.protocolClass)) {
    stage_ = Stage::AskingClass;
    return connection_.Ask({'1', "CLSS", std::string(PjLink::kQuery)}, answerTime_, now);
  }
  if (class_.RulesOut(request_.protocolClass)) {
    if (!isQuestion_) return Continue(execution_.RefuseAsNotOffered(), now);
    result_.kind = PjLinkResult::Kind::None;
    stage_ = Stage::Idle;
    return;
  }
  stage_ = Stage::Asking;
  connection_.Ask({class_.ForRequest(request_.protocolClass), request_.command, request_.parameter},
                  answerTime_, now);
}

void PjLinkSession::Handle(const PjLinkAnswer& answer, PjLinkTime now) {
  const bool isForClass = stage_ == Stage::AskingClass;
  const bool mayRepeat = isForClass || isQuestion_;
  const bool isLost = mayRepeat && !answer.parameter && answer.sent;
  if (isLost && !std::exchange(hasRepeated_, true)) return Ask(now);
  if (isForClass && answer.parameter) {
    class_.Take(*answer.parameter);
    request_.mayAskClass = false;
    return Ask(now);
  }
  if (isQuestion_) {
    result_ = ResultOf(answer);
    stage_ = Stage::Idle;
  } else {
    Continue(isForClass ? execution_.FinishUnsent() : execution_.Handle(answer, class_, now), now);
  }
}

}  // namespace AdvancedControl
