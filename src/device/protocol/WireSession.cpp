#include "device/protocol/WireSession.h"

#include <utility>

namespace AdvancedControl {

void WireSession::Announce(std::span<const PjtCommand> reads) {
  // On a noisy line nothing is sent ahead.
  requests_.Announce(medium_ == Medium::Noisy ? std::span<const PjtCommand>() : reads);
}

void WireSession::Begin(const PjtCommand& command, SessionTime now) {
  command_.Begin(command, now);
  if (IsRead(command.operation)) {
    requests_.ForgetOld(limits_.answer, now);
  } else {
    requests_.Forget();
  }
  Start(now);
}

SessionStep WireSession::Next(SessionTime now) {
  using Kind = SessionStep::Kind;
  while (Advance(now)) {
  }
  if (connection_.TakeDrop()) return {.kind = Kind::Close};
  if (stage_ == Stage::Idle) return {};
  if (stage_ == Stage::Opening) {
    stage_ = Stage::Connecting;
    return {.kind = Kind::Connect, .until = until_};
  }
  if (connection_.Unsent().empty()) return {.kind = Kind::Wait, .until = until_};
  const SessionTime until =
      stage_ == Stage::Greeting ? connection_.WelcomeBy() : command_.Within(limits_.answer, now);
  return {.kind = Kind::Send, .until = until, .bytes = std::exchange(connection_.Unsent(), {})};
}

void WireSession::Connected() {
  if (stage_ != Stage::Connecting) return;
  connection_.Opened(requests_.NumberHello());
  // On a reliable line the first requests are sent together with the hello.
  stage_ = medium_ == Medium::Noisy ? Stage::Greeting : Stage::Asking;
}

void WireSession::NotConnected(ConnectionState problem) {
  if (stage_ == Stage::Connecting) Fail(problem);
}

void WireSession::Received(std::string_view bytes) {
  if (!IsOpen()) return;
  connection_.Receive(bytes);
  while (const auto frame = connection_.NextFrame()) requests_.Receive(*frame);
  const bool isInvalid = medium_ == Medium::Reliable && connection_.HasNoise();
  if (!isInvalid) return;
  if (stage_ == Stage::Idle) {
    connection_.Drop();
  } else {
    Fail(ConnectionState::NotUnderstood);
  }
}

void WireSession::Closed(ConnectionState problem) {
  connection_.Closed();
  if (stage_ != Stage::Idle) Fail(problem);
}

void WireSession::Start(SessionTime now) {
  if (IsOpen()) {
    stage_ = Stage::Asking;
    return;
  }
  requests_.ForgetSent();
  connection_.Start(command_.Within(limits_.connect, now));
  Await(Stage::Opening, connection_.WelcomeBy());
}

bool WireSession::Advance(SessionTime now) {
  const bool isLate = connection_.Unsent().empty() && now >= until_;
  switch (stage_) {  // unreachable: there is a case for every stage
    case Stage::Idle:
    case Stage::Opening:
      return false;
    case Stage::Connecting:
      if (!isLate) return false;
      Fail(ConnectionState::NotReachable);
      return true;
    case Stage::Asking:
      if (requests_.SkipTo(command_.Command())) {
        Await(Stage::AwaitingReply, command_.Within(limits_.answer, now));
      } else {
        SendRequest();
      }
      return true;
    case Stage::Greeting:
    case Stage::AwaitingWelcome:
      if (connection_.Welcome()) {
        TakeWelcome(now);
        return true;
      }
      break;
    case Stage::AwaitingReply:
      if (const auto reply = requests_.TakeReply(now)) {
        TakeReply(*reply, now);
        return true;
      }
      break;
  }
  if (isLate) Fail(ConnectionState::NoAnswer);
  return isLate;
}

void WireSession::SendRequest() {
  requests_.Send(command_.Command(), connection_.Unsent());
  command_.MarkSent();
  Await(Stage::AwaitingWelcome, connection_.WelcomeBy());
}

void WireSession::TakeWelcome(SessionTime now) {
  if (!HasGreeted()) return Fail(ConnectionState::OtherVersion);
  if (stage_ == Stage::Greeting) {
    stage_ = Stage::Asking;
  } else {
    Await(Stage::AwaitingReply, command_.Within(limits_.answer, now));
  }
}

void WireSession::TakeReply(const Wire::Reply& reply, SessionTime now) {
  if (reply.status != Wire::Status::NoHello) {
    command_.Answer(reply);
    connection_.SetState(ConnectionState::Connected);
    stage_ = Stage::Idle;
  } else if (command_.RepeatForgotten()) {
    // The projector has forgotten the hello, for example after a restart.
    connection_.Drop();
    Start(now);
  } else {
    Fail(ConnectionState::NotUnderstood);
  }
}

void WireSession::Await(Stage stage, SessionTime until) {
  stage_ = stage;
  until_ = until;
}

void WireSession::Fail(ConnectionState problem) {
  connection_.Drop();
  connection_.SetState(problem);
  command_.Fail(problem);
  stage_ = Stage::Idle;
}

}  // namespace AdvancedControl
