#include "device/protocol/WireSession.h"

#include <algorithm>
#include <utility>

namespace AdvancedControl {

namespace {

constexpr std::size_t kMostUnanswered = 64;

bool HasForgottenHello(const Wire::Reply& reply) { return reply.status == Wire::Status::NoHello; }

}  // namespace

void WireSession::Announce(std::span<const PjtCommand> reads) {
  announced_.clear();
  sent_.clear();
  if (medium_ == Medium::Noisy) return;
  std::ranges::copy_if(reads, std::back_inserter(announced_), IsRead, &PjtCommand::operation);
}

void WireSession::Begin(const PjtCommand& command, SessionTime now) {
  command_ = command;
  isSent_ = false;
  wasForgotten_ = false;
  if (!IsRead(command.operation)) {
    announced_.clear();
    sent_.clear();
  } else if (now - lastAsked_ > limits_.answer) {
    sent_.clear();  // replies received after a pause may be outdated
  }
  if (longest_) giveUpAt_ = now + *longest_;
  Start(now);
}

SessionStep WireSession::Next(SessionTime now) {
  using Kind = SessionStep::Kind;
  while (Advance(now)) {
  }
  if (std::exchange(finishes_, false)) lastAsked_ = now;
  if (std::exchange(closes_, false)) return {.kind = Kind::Close};
  if (stage_ == Stage::Idle) return {};
  if (stage_ == Stage::Opening) {
    stage_ = Stage::Connecting;
    return {.kind = Kind::Connect, .until = until_};
  }
  if (unsent_.empty()) return {.kind = Kind::Wait, .until = until_};
  const SessionTime until = stage_ == Stage::Greeting ? welcomeBy_ : Within(limits_.answer, now);
  return {.kind = Kind::Send, .until = until, .bytes = std::exchange(unsent_, {})};
}

void WireSession::Connected() {
  if (stage_ != Stage::Connecting) return;
  isOpen_ = true;
  hello_ = ++sequence_;
  answered_ = hello_;
  Wire::Append(unsent_, {.sequence = hello_, .message = Wire::Hello{}});
  // On a reliable line the first requests are sent together with the hello.
  stage_ = medium_ == Medium::Noisy ? Stage::Greeting : Stage::Asking;
}

void WireSession::NotConnected(ConnectionState problem) {
  if (stage_ == Stage::Connecting) Fail(problem);
}

void WireSession::Received(std::string_view bytes) {
  if (!isOpen_) return;
  decoder_.Add(bytes);
  while (const auto frame = decoder_.Next()) Take(*frame);
  const bool isInvalid = medium_ == Medium::Reliable && decoder_.Skipped() > 0;
  if (!isInvalid) return;
  if (stage_ == Stage::Idle) {
    Drop();
  } else {
    Fail(ConnectionState::NotUnderstood);
  }
}

void WireSession::Closed(ConnectionState problem) {
  isOpen_ = false;
  if (stage_ != Stage::Idle) Fail(problem);
}

SessionTime WireSession::Within(std::chrono::milliseconds time, SessionTime now) const {
  return std::min<SessionTime>(now + time, giveUpAt_);
}

void WireSession::Start(SessionTime now) {
  if (isOpen_) {
    stage_ = Stage::Asking;
    return;
  }
  sent_.clear();
  decoder_ = {};
  welcome_.reset();
  unsent_.clear();
  state_ = ConnectionState::Connecting;
  welcomeBy_ = Within(limits_.connect, now);
  Await(Stage::Opening, welcomeBy_);
}

bool WireSession::Advance(SessionTime now) {
  const bool isLate = unsent_.empty() && now >= until_;
  switch (stage_) {
    case Stage::Idle:
    case Stage::Opening:
      return false;
    case Stage::Connecting:
      if (!isLate) return false;
      Fail(ConnectionState::NotReachable);
      return true;
    case Stage::Asking:
      Ask(now);
      return true;
    case Stage::AwaitingSlot:
      if (FreeSlots() > 0) {
        Make();
        return true;
      }
      break;
    case Stage::Greeting:
    case Stage::AwaitingWelcome:
      if (welcome_) {
        TakeWelcome(now);
        return true;
      }
      break;
    case Stage::AwaitingReply:
      if (sent_.front().reply) {
        TakeReply(now);
        return true;
      }
      break;
  }
  if (isLate) Fail(ConnectionState::NoAnswer);
  return isLate;
}

void WireSession::Ask(SessionTime now) {
  const auto own = std::ranges::find(sent_, command_, &Sent::command);
  if (own == sent_.end()) return Await(Stage::AwaitingSlot, now + limits_.answer);
  sent_.erase(sent_.begin(), own);  // drops announced reads that were skipped
  Await(Stage::AwaitingReply, Within(limits_.answer, now));
}

/// Makes the request and those announced after it.
void WireSession::Make() {
  const auto announced = std::ranges::find(announced_, command_);
  if (announced == announced_.end()) {
    Put({&command_, 1});
    // Before the rest of a burst, whose replies are still valid.
    sent_.push_front(sent_.back());
    sent_.pop_back();
  } else {
    sent_.clear();
    const std::size_t count =
        std::min(FreeSlots(), static_cast<std::size_t>(announced_.end() - announced));
    Put({&*announced, count});
    announced_.erase(announced_.begin(), announced + static_cast<std::ptrdiff_t>(count));
  }
  isSent_ = true;
  Await(Stage::AwaitingWelcome, welcomeBy_);
}

void WireSession::Put(std::span<const PjtCommand> commands) {
  for (const PjtCommand& command : commands) {
    Wire::Append(unsent_, {.sequence = ++sequence_, .message = Wire::MakeRequest(command)});
    sent_.push_back({command, sequence_, {}});
  }
}

std::size_t WireSession::FreeSlots() const {
  const auto unanswered = static_cast<std::uint16_t>(sequence_ - answered_);
  return kMostUnanswered - std::min<std::size_t>(unanswered, kMostUnanswered);
}

// Drops frames that belong to no request, and second replies.
void WireSession::Take(const Wire::Frame& frame) {
  if (const auto* welcome = std::get_if<Wire::Welcome>(&frame.message)) {
    if (frame.sequence == hello_ && !welcome_) welcome_ = *welcome;
  } else if (const auto* reply = std::get_if<Wire::Reply>(&frame.message)) {
    const auto ahead = static_cast<std::uint16_t>(frame.sequence - answered_);
    if (ahead <= static_cast<std::uint16_t>(sequence_ - answered_)) answered_ = frame.sequence;
    const auto sent = std::ranges::find(sent_, frame.sequence, &Sent::sequence);
    if (sent != sent_.end() && !sent->reply) sent->reply = *reply;
  }
}

void WireSession::TakeWelcome(SessionTime now) {
  if (welcome_->version != Wire::kVersion) return Fail(ConnectionState::OtherVersion);
  if (stage_ == Stage::Greeting) {
    stage_ = Stage::Asking;
  } else {
    Await(Stage::AwaitingReply, Within(limits_.answer, now));
  }
}

void WireSession::TakeReply(SessionTime now) {
  const Wire::Reply reply = *sent_.front().reply;
  sent_.pop_front();
  if (!HasForgottenHello(reply)) return Finish(reply);
  // The projector has forgotten the hello, for example after a restart, and executed nothing.
  // Repeats hello and request.
  if (std::exchange(wasForgotten_, true)) {
    isSent_ = false;
    return Fail(ConnectionState::NotUnderstood);
  }
  Drop();
  Start(now);
}

void WireSession::Await(Stage stage, SessionTime until) {
  stage_ = stage;
  until_ = until;
}

void WireSession::Drop() {
  closes_ = true;
  isOpen_ = false;
  sent_.clear();
  unsent_.clear();
}

void WireSession::Fail(ConnectionState problem) {
  Drop();
  state_ = problem;
  Finish({});
}

void WireSession::Finish(const std::optional<Wire::Reply>& reply) {
  stage_ = Stage::Idle;
  finishes_ = true;
  const int refused = RefusedResult(command_.operation);
  // Without a common version the projector executes nothing.
  const bool isHopeless = state_ == ConnectionState::OtherVersion;
  reply_ = {.result = refused, .answered = false, .unsent = !isSent_ || isHopeless};
  if (!reply) return;
  state_ = ConnectionState::Connected;
  reply_.unsent = false;
  if (reply->status == Wire::Status::Answered) {
    reply_ = {.result = reply->result, .value = reply->value};
  } else if (reply->status == Wire::Status::UnknownOperation) {
    reply_ = {.result = refused, .offered = false};
  }
}

}  // namespace AdvancedControl
