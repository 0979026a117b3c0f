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
constexpr int kIdlePieces = 64;  // taken of what came while nothing was asked

bool IsForgotten(const std::optional<Wire::Reply>& reply) {
  return reply && reply->status == Wire::Status::NoHello;
}

int Rest(const QDeadlineTimer& deadline) { return static_cast<int>(deadline.remainingTime()); }

}  // namespace

// Counting begins anywhere: on a serial line a late reply may be that to somebody before us.
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
    sent_.clear();  // what came during a pause may be as old as that
  }
  if (longest_) giveUpAt_ = Clock::now() + *longest_;
  const auto ask = [&] { return Connect() ? Ask(command) : std::nullopt; };
  auto reply = ask();
  // It forgot us, as after a restart, and did nothing: so once more, from the hello on.
  if (IsForgotten(reply)) reply = ask();
  lastAsked_ = Clock::now();
  if (IsForgotten(reply)) Fail(ConnectionState::NotUnderstood);
  // Nothing is carried out without a version in common.
  const bool isInVain = IsForgotten(reply) || state_ == ConnectionState::OtherVersion;
  unanswered.unsent = !isSent_ || isInVain;
  if (!reply || IsForgotten(reply)) return unanswered;
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
  if (line_ && (unused >= limits_.unused || !TakeWhatCame())) Fail(ConnectionState::Unused);
  return line_ != nullptr;
}

QDeadlineTimer WireChannel::Within(std::chrono::milliseconds time) const {
  return QDeadlineTimer(std::min<Clock::time_point>(Clock::now() + time, giveUpAt_));
}

bool WireChannel::Connect() {
  if (line_ && TakeWhatCame()) return true;
  line_.reset();  // a serial port is opened by one alone
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
  // Without noise the first requests go out together with it.
  return medium_ == Medium::Reliable || (Write(deadline) && AwaitWelcome());
}

bool WireChannel::TakeWhatCame() {
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
    const auto hasRoom = [this] { return Room() > 0; };
    if (!Await(hasRoom, QDeadlineTimer(limits_.answer))) return std::nullopt;
    const auto announced = std::ranges::find(announced_, command);
    if (announced == announced_.end()) {
      Send({&command, 1});
      // Before the rest of a burst, whose replies still count.
      sent_.push_front(sent_.back());
      sent_.pop_back();
    } else {
      sent_.clear();
      const std::size_t count =
          std::min(Room(), static_cast<std::size_t>(announced_.end() - announced));
      Send({&*announced, count});
      announced_.erase(announced_.begin(), announced + static_cast<std::ptrdiff_t>(count));
    }
    isSent_ = true;
    if (!Write(Within(limits_.answer)) || !AwaitWelcome()) return std::nullopt;
    own = sent_.begin();
  }
  sent_.erase(sent_.begin(), own);  // passed over
  const auto answered = [this] { return sent_.front().reply.has_value(); };
  if (!Await(answered, Within(limits_.answer))) return std::nullopt;
  const auto reply = sent_.front().reply;
  sent_.pop_front();
  if (IsForgotten(reply)) Fail(ConnectionState::Lost);
  return reply;
}

void WireChannel::Send(std::span<const PjtCommand> commands) {
  for (const PjtCommand& command : commands) {
    Wire::Append(unsent_, {.sequence = ++sequence_, .message = Wire::MakeRequest(command)});
    sent_.push_back({command, sequence_, {}});
  }
}

std::size_t WireChannel::Room() const {
  const auto unanswered = static_cast<std::uint16_t>(sequence_ - answered_);
  return kMostUnanswered - std::min<std::size_t>(unanswered, kMostUnanswered);
}

bool WireChannel::Write(const QDeadlineTimer& deadline) {
  const std::string bytes = std::exchange(unsent_, {});
  const auto size = static_cast<qint64>(bytes.size());
  if (line_->write(bytes.data(), size) != size) return Fail(ConnectionState::Lost);
  while (line_->bytesToWrite() > 0) {
    if (line_->waitForBytesWritten(Rest(deadline))) continue;
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
      case Arrival::Strange:
        return Fail(ConnectionState::NotUnderstood);
    }
  }
  return true;
}

WireChannel::Arrival WireChannel::Receive(const QDeadlineTimer& deadline) {
  if (line_->bytesAvailable() == 0 && !line_->waitForReadyRead(Rest(deadline)) &&
      line_->bytesAvailable() == 0) {
    return IsAlive(*line_) ? Arrival::Late : Arrival::Broken;
  }
  std::array<char, 4096> piece;
  const qint64 size = line_->read(piece.data(), piece.size());
  if (size <= 0) return Arrival::Broken;
  decoder_.Add({piece.data(), static_cast<std::size_t>(size)});
  while (const auto frame = decoder_.Next()) Take(*frame);
  const bool strange = medium_ == Medium::Reliable && decoder_.Skipped() > 0;
  return strange ? Arrival::Strange : Arrival::Bytes;
}

// What belongs to no request, or comes a second time, is nobody's.
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
