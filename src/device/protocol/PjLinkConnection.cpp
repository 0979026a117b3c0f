#include "device/protocol/PjLinkConnection.h"

#include <utility>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

using Kind = PjLinkStep::Kind;

void PjLinkConnection::Ask(PjLinkRequest request, PjLinkLimits::Time time, PjLinkTime now) {
  request_ = std::move(request);
  answerTime_ = time;
  answer_ = {};
  sawOtherLine_ = false;
  mayRepeat_ = request_.parameter.starts_with(PjLink::kQuery);
  // The rest of an incomplete line would arrive later.
  if (reader_.HasPart()) Drop();
  if (!isOpen_) return Open(now);
  stage_ = !mayRepeat_ && replies_ == 1 ? Stage::Settling : Stage::Sending;
  until_ = repliedAt_ + limits_.closing;
}

PjLinkStep PjLinkConnection::Next(PjLinkTime now) {
  const bool isLate = now >= until_;
  if (stage_ == Stage::Connecting && isLate) GiveUp(ConnectionState::NotReachable);
  if (stage_ == Stage::Greeting && isLate) GiveUp(ConnectionState::NoAnswer);
  if (stage_ == Stage::Awaiting && isLate) {
    GiveUp(sawOtherLine_ ? ConnectionState::NotUnderstood : ConnectionState::NoAnswer);
  }
  if (std::exchange(closes_, false)) return {.kind = Kind::Close};
  switch (stage_) {
    case Stage::Idle:
      return {};
    case Stage::Pausing:
      if (!isLate) return {.kind = Kind::Wait, .until = until_};
      stage_ = Stage::Connecting;
      until_ = connectBy_;
      return {.kind = Kind::Connect, .until = until_};
    case Stage::Settling:
      if (!isLate) return {.kind = Kind::Wait, .until = until_};
      [[fallthrough]];
    case Stage::Sending: {
      stage_ = Stage::Awaiting;
      until_ = now + answerTime_;
      answer_.sent = true;
      const PjLink::Line line{request_.protocolClass, request_.command, ' ', request_.parameter};
      return {.kind = Kind::Send, .bytes = std::exchange(proof_, {}) + PjLink::Format(line) + '\r'};
    }
    default:
      return {.kind = Kind::Wait, .until = until_};
  }
}

void PjLinkConnection::Connected() {
  if (stage_ != Stage::Connecting) return;
  isOpen_ = true;
  stage_ = Stage::Greeting;
  replies_ = 0;
  reader_.Clear();
}

void PjLinkConnection::NotConnected(ConnectionState problem, PjLinkTime now) {
  if (stage_ == Stage::Connecting) OpenLater(problem, now);
}

void PjLinkConnection::Received(std::string_view bytes, PjLinkTime now) {
  if (!isOpen_) return;
  reader_.Add(bytes);
  while (isOpen_) {
    const auto line = reader_.Next();
    if (!line) break;
    if (stage_ == Stage::Greeting) HandleGreeting(*line);
    if (stage_ == Stage::Awaiting) HandleReply(*line, now);
  }
  if (reader_.IsTooLong()) GiveUp(ConnectionState::NotUnderstood);
}

void PjLinkConnection::Closed(PjLinkTime now) {
  isOpen_ = false;
  reader_.Clear();
  switch (stage_) {
    case Stage::Greeting:
      OpenLater(ConnectionState::Lost, now);
      break;
    case Stage::Settling:
    case Stage::Sending:
      Open(now);
      break;
    case Stage::Awaiting:
      if (std::exchange(mayRepeat_, false)) {
        Open(now);
      } else {
        Finish(ConnectionState::Lost);
      }
      break;
    default:
      break;
  }
}

void PjLinkConnection::Open(PjLinkTime now) {
  state_ = ConnectionState::Connecting;
  connectBy_ = now + limits_.connect;
  pause_ = limits_.pause;
  problem_.reset();
  stage_ = Stage::Pausing;
  until_ = now;
}

void PjLinkConnection::OpenLater(ConnectionState problem, PjLinkTime now) {
  // The look-up of a known name ran out of time.
  const bool isUnknown = problem == ConnectionState::NameUnknown;
  if (isUnknown && problem_) problem = *problem_;
  problem_ = problem;
  until_ = now + pause_;
  if (isUnknown || until_ >= connectBy_) return Finish(problem);
  stage_ = Stage::Pausing;
  pause_ *= 2;
}

void PjLinkConnection::HandleGreeting(std::string_view line) {
  const auto seed = PjLink::ParseGreeting(line);
  if (!seed) {
    return GiveUp(PjLink::SameWord(line, PjLink::kWrongPassword) ? ConnectionState::PasswordRequired
                                                                 : ConnectionState::NotUnderstood);
  }
  proof_ = seed->empty() ? std::string() : PjLink::Digest(*seed, password_);
  hasGreeted_ = true;
  stage_ = Stage::Sending;
}

void PjLinkConnection::HandleReply(const std::string& line, PjLinkTime now) {
  const auto reply = PjLink::Parse(line);
  const bool isReply = reply && reply->separator == '=';
  if (isReply && PjLink::SameWord(reply->command, request_.command)) {
    answer_.parameter = reply->parameter;
    ++replies_;
    repliedAt_ = now;
    return Finish(ConnectionState::Connected);
  }
  if (PjLink::SameWord(line, PjLink::kWrongPassword)) {
    answer_.sent = false;  // without it the projector carries nothing out
    hasGreeted_ = false;
    return GiveUp(ConnectionState::PasswordRequired);
  }
  if (isReply) return;
  // The answer to a change may still follow.
  sawOtherLine_ = true;
  if (std::exchange(mayRepeat_, false)) {
    stage_ = Stage::Sending;
  } else if (request_.parameter.starts_with(PjLink::kQuery)) {
    GiveUp(ConnectionState::NotUnderstood);
  }
}

/// Gives up the request and the connection.
void PjLinkConnection::GiveUp(ConnectionState problem) {
  Drop();
  if (stage_ != Stage::Idle) Finish(problem);
}

void PjLinkConnection::Finish(ConnectionState state) {
  stage_ = Stage::Idle;
  state_ = state;
}

void PjLinkConnection::Drop() {
  closes_ = true;
  isOpen_ = false;
  reader_.Clear();
}

}  // namespace AdvancedControl
