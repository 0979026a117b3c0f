#include "device/protocol/PjLinkConnection.h"

#include <utility>

namespace AdvancedControl {

void PjLinkConnection::Ask(PjLinkRequest request, PjLinkLimits::Time time, PjLinkTime now) {
  exchange_.Start(std::move(request), time);
  // The rest of an incomplete line would arrive later.
  if (reader_.HasPart()) Drop();
  if (!isOpen_) return Open(now);
  stage_ = !exchange_.IsQuestion() && replies_ == 1 ? Stage::Settling : Stage::Sending;
  until_ = repliedAt_ + limits_.closing;
}

PjLinkStep PjLinkConnection::Next(PjLinkTime now) {
  using Kind = PjLinkStep::Kind;
  const bool isLate = now >= until_;
  if (stage_ == Stage::Connecting && isLate) GiveUp(ConnectionState::NotReachable);
  if (stage_ == Stage::Greeting && isLate) GiveUp(ConnectionState::NoAnswer);
  if (stage_ == Stage::Awaiting && isLate) GiveUp(exchange_.Silence());
  if (std::exchange(closes_, false)) return {.kind = Kind::Close};
  switch (stage_) {
    case Stage::Idle:
      return {};
    case Stage::Pausing:
      if (!isLate) return {.kind = Kind::Wait, .until = until_};
      stage_ = Stage::Connecting;
      until_ = attempts_.Deadline();
      return {.kind = Kind::Connect, .until = until_};
    case Stage::Settling:
      if (!isLate) return {.kind = Kind::Wait, .until = until_};
      [[fallthrough]];
    case Stage::Sending:
      stage_ = Stage::Awaiting;
      until_ = now + exchange_.AnswerTime();
      return {.kind = Kind::Send, .bytes = login_.TakeProof() + exchange_.Send()};
    default:
      return {.kind = Kind::Wait, .until = until_};
  }
}

void PjLinkConnection::Connected() {
  if (stage_ != Stage::Connecting) return;
  isOpen_ = true;
  stage_ = Stage::Greeting;
  replies_ = 0;
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
    if (stage_ == Stage::Awaiting) HandleLine(*line, now);
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
      if (replies_ > 0) {
        Open(now);
      } else {
        OpenLater(ConnectionState::Lost, now);
      }
      break;
    case Stage::Awaiting:
      if (exchange_.TakeRepetition()) {
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
  attempts_.Start(now + limits_.connect, limits_.pause);
  stage_ = Stage::Pausing;
  until_ = now;
}

void PjLinkConnection::OpenLater(ConnectionState problem, PjLinkTime now) {
  const auto next = attempts_.Fail(problem, now);
  if (!next) return Finish(attempts_.Problem());
  stage_ = Stage::Pausing;
  until_ = *next;
}

void PjLinkConnection::HandleGreeting(std::string_view line) {
  if (const auto problem = login_.Take(line)) return GiveUp(*problem);
  stage_ = Stage::Sending;
}

void PjLinkConnection::HandleLine(const std::string& line, PjLinkTime now) {
  switch (exchange_.Take(line)) {  // unreachable: there is a case for every kind of line
    case PjLinkExchange::Line::Answer:
      ++replies_;
      repliedAt_ = now;
      return Finish(ConnectionState::Connected);
    case PjLinkExchange::Line::PasswordRefused:
      login_.Refuse();
      return GiveUp(ConnectionState::PasswordRequired);
    case PjLinkExchange::Line::OtherReply:
      return;
    case PjLinkExchange::Line::Noise:
      if (exchange_.TakeRepetition()) {
        stage_ = Stage::Sending;
      } else if (exchange_.IsQuestion()) {
        GiveUp(ConnectionState::NotUnderstood);
      }
      return;  // the answer to a change may still follow
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
