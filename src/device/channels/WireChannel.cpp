#include "device/channels/WireChannel.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QDeadlineTimer>
#include <QIODevice>
#include <QRandomGenerator>

namespace AdvancedControl {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kMostUnanswered = 64;
constexpr int kIdlePieces = 64;  // of unsolicited data, read at once

bool HasForgottenHello(const std::optional<Wire::Reply>& reply) {
  return reply && reply->status == Wire::Status::NoHello;
}

int Remaining(const QDeadlineTimer& deadline) { return static_cast<int>(deadline.remainingTime()); }

}  // namespace

// Sequence numbers start at a random value: on a serial line, a late reply may be for the previous
// program.
WireChannel::WireChannel(Medium medium, const Limits& limits)
    : medium_(medium),
      limits_(limits),
      sequence_(static_cast<std::uint16_t>(QRandomGenerator::global()->generate())) {}

WireChannel::~WireChannel() = default;

PjtReply WireChannel::Execute(const PjtCommand& command) {
  PjtReply unanswered{.result = RefusedResult(command.operation), .answered = false};
  isSent_ = false;
  if (!IsRead(command.operation)) {
    announced_.clear();
    sent_.clear();
  } else if (Clock::now() - lastAsked_ > limits_.answer) {
    sent_.clear();  // replies received after a pause may be outdated
  }
  if (longest_) giveUpAt_ = Clock::now() + *longest_;
  const auto ask = [&] { return Connect() ? Ask(command) : std::nullopt; };
  auto reply = ask();
  // The projector has forgotten the hello, for example after a restart, and executed nothing.
  // Repeats hello and request.
  if (HasForgottenHello(reply)) reply = ask();
  lastAsked_ = Clock::now();
  if (HasForgottenHello(reply)) Fail(ConnectionState::NotUnderstood);
  // Without a common version the projector executes nothing.
  const bool isHopeless = HasForgottenHello(reply) || state_ == ConnectionState::OtherVersion;
  unanswered.unsent = !isSent_ || isHopeless;
  if (!reply || HasForgottenHello(reply)) return unanswered;
  unanswered.unsent = false;
  state_ = ConnectionState::Connected;
  switch (reply->status) {
    case Wire::Status::Answered:
      return {.result = reply->result, .value = reply->value};
    case Wire::Status::UnknownOperation:
      return {.result = unanswered.result, .offered = false};
    default:
      return unanswered;
  }
}

void WireChannel::Announce(std::span<const PjtCommand> reads) {
  announced_.clear();
  sent_.clear();
  if (medium_ == Medium::Noisy) return;
  std::ranges::copy_if(reads, std::back_inserter(announced_), IsRead, &PjtCommand::operation);
}

bool WireChannel::TendConnection(std::chrono::milliseconds unused) {
  if (line_ && (unused >= limits_.unused || !ReceiveUnsolicited())) Fail(ConnectionState::Unused);
  return line_ != nullptr;
}

QDeadlineTimer WireChannel::Within(std::chrono::milliseconds time) const {
  return QDeadlineTimer(std::min<Clock::time_point>(Clock::now() + time, giveUpAt_));
}

bool WireChannel::Connect() {
  if (line_ && ReceiveUnsolicited()) return true;
  line_.reset();  // only one program can open a serial port
  sent_.clear();
  decoder_ = {};
  welcome_.reset();
  state_ = ConnectionState::Connecting;
  welcomeBy_ = std::min<Clock::time_point>(Clock::now() + limits_.connect, giveUpAt_);
  const QDeadlineTimer deadline(welcomeBy_);
  auto problem = ConnectionState::NotReachable;
  line_ = Open(deadline, problem);
  if (!line_) return Fail(problem);
  unsent_.clear();
  hello_ = ++sequence_;
  answered_ = hello_;
  Wire::Append(unsent_, {.sequence = hello_, .message = Wire::Hello{}});
  // On a reliable line the first requests are sent together with the hello.
  return medium_ == Medium::Reliable || (Write(deadline) && AwaitWelcome());
}

bool WireChannel::ReceiveUnsolicited() {
  for (int i = 0; i < kIdlePieces; ++i) {
    const Arrival arrival = Receive(QDeadlineTimer(0));
    if (arrival != Arrival::Bytes) return arrival == Arrival::Late;
  }
  return false;
}

bool WireChannel::AwaitWelcome() {
  const auto welcomed = [this] { return welcome_.has_value(); };
  if (!Await(welcomed, QDeadlineTimer(welcomeBy_))) return false;
  return welcome_->version == Wire::kVersion || Fail(ConnectionState::OtherVersion);
}

std::optional<Wire::Reply> WireChannel::Ask(const PjtCommand& command) {
  auto own = std::ranges::find(sent_, command, &Sent::command);
  if (own == sent_.end()) {
    const auto hasRoom = [this] { return FreeSlots() > 0; };
    if (!Await(hasRoom, QDeadlineTimer(limits_.answer))) return std::nullopt;
    const auto announced = std::ranges::find(announced_, command);
    if (announced == announced_.end()) {
      Send({&command, 1});
      // Before the rest of a burst, whose replies are still valid.
      sent_.push_front(sent_.back());
      sent_.pop_back();
    } else {
      sent_.clear();
      const std::size_t count =
          std::min(FreeSlots(), static_cast<std::size_t>(announced_.end() - announced));
      Send({&*announced, count});
      announced_.erase(announced_.begin(), announced + static_cast<std::ptrdiff_t>(count));
    }
    isSent_ = true;
    if (!Write(Within(limits_.answer)) || !AwaitWelcome()) return std::nullopt;
    own = sent_.begin();
  }
  sent_.erase(sent_.begin(), own);  // drops announced reads that were skipped
  const auto answered = [this] { return sent_.front().reply.has_value(); };
  if (!Await(answered, Within(limits_.answer))) return std::nullopt;
  const auto reply = sent_.front().reply;
  sent_.pop_front();
  if (HasForgottenHello(reply)) Fail(ConnectionState::Lost);
  return reply;
}

void WireChannel::Send(std::span<const PjtCommand> commands) {
  for (const PjtCommand& command : commands) {
    Wire::Append(unsent_, {.sequence = ++sequence_, .message = Wire::MakeRequest(command)});
    sent_.push_back({command, sequence_, {}});
  }
}

std::size_t WireChannel::FreeSlots() const {
  const auto unanswered = static_cast<std::uint16_t>(sequence_ - answered_);
  return kMostUnanswered - std::min<std::size_t>(unanswered, kMostUnanswered);
}

bool WireChannel::Write(const QDeadlineTimer& deadline) {
  const std::string bytes = std::exchange(unsent_, {});
  const auto size = static_cast<qint64>(bytes.size());
  if (line_->write(bytes.data(), size) != size) return Fail(ConnectionState::Lost);
  while (line_->bytesToWrite() > 0) {
    if (line_->waitForBytesWritten(Remaining(deadline))) continue;
    return Fail(IsAlive(*line_) ? ConnectionState::NoAnswer : ConnectionState::Lost);
  }
  return true;
}

bool WireChannel::Await(const auto& arrived, const QDeadlineTimer& deadline) {
  while (!arrived()) {
    switch (deadline.hasExpired() ? Arrival::Late : Receive(deadline)) {
      case Arrival::Bytes:
        break;
      case Arrival::Late:
        return Fail(ConnectionState::NoAnswer);
      case Arrival::Broken:
        return Fail(ConnectionState::Lost);
      case Arrival::Invalid:
        return Fail(ConnectionState::NotUnderstood);
    }
  }
  return true;
}

WireChannel::Arrival WireChannel::Receive(const QDeadlineTimer& deadline) {
  if (line_->bytesAvailable() == 0 && !line_->waitForReadyRead(Remaining(deadline)) &&
      line_->bytesAvailable() == 0) {
    return IsAlive(*line_) ? Arrival::Late : Arrival::Broken;
  }
  std::array<char, 4096> piece;
  const qint64 size = line_->read(piece.data(), piece.size());
  if (size <= 0) return Arrival::Broken;
  decoder_.Add({piece.data(), static_cast<std::size_t>(size)});
  while (const auto frame = decoder_.Next()) Take(*frame);
  const bool strange = medium_ == Medium::Reliable && decoder_.Skipped() > 0;
  return strange ? Arrival::Invalid : Arrival::Bytes;
}

// Drops frames that belong to no request, and second replies.
void WireChannel::Take(const Wire::Frame& frame) {
  if (const auto* welcome = std::get_if<Wire::Welcome>(&frame.message)) {
    if (frame.sequence == hello_ && !welcome_) welcome_ = *welcome;
  } else if (const auto* reply = std::get_if<Wire::Reply>(&frame.message)) {
    const auto ahead = static_cast<std::uint16_t>(frame.sequence - answered_);
    if (ahead <= static_cast<std::uint16_t>(sequence_ - answered_)) answered_ = frame.sequence;
    const auto sent = std::ranges::find(sent_, frame.sequence, &Sent::sequence);
    if (sent != sent_.end() && !sent->reply) sent->reply = *reply;
  }
}

bool WireChannel::Fail(ConnectionState problem) {
  line_.reset();
  sent_.clear();
  state_ = problem;
  return false;
}

}  // namespace AdvancedControl
