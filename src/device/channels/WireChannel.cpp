#include "device/channels/WireChannel.h"

#include <array>

#include <QDeadlineTimer>
#include <QIODevice>
#include <QRandomGenerator>

namespace AdvancedControl {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kIdlePieces = 64;  // of unsolicited data, read at once

int Remaining(const QDeadlineTimer& deadline) { return static_cast<int>(deadline.remainingTime()); }

}  // namespace

WireChannel::WireChannel(Medium medium, const Limits& limits)
    : longestUnused_(limits.unused),
      session_(medium, {.connect = limits.connect, .answer = limits.answer},
               static_cast<std::uint16_t>(QRandomGenerator::global()->generate())) {}

WireChannel::~WireChannel() = default;

PjtReply WireChannel::Execute(const PjtCommand& command) {
  if (line_ && !ReceiveUnsolicited()) Disconnect(ConnectionState::Lost);
  session_.Begin(command, Clock::now());
  for (auto step = session_.Next(Clock::now()); step.kind != SessionStep::Kind::Finished;
       step = session_.Next(Clock::now())) {
    state_ = session_.State();
    Drive(step);
  }
  state_ = session_.State();
  return session_.Reply();
}

bool WireChannel::TendConnection(std::chrono::milliseconds unused) {
  if (line_ && (unused >= longestUnused_ || !ReceiveUnsolicited())) {
    Disconnect(ConnectionState::Lost);
    state_ = ConnectionState::Unused;
  }
  return line_ != nullptr;
}

bool WireChannel::ReceiveUnsolicited() {
  for (int i = 0; i < kIdlePieces; ++i) {
    const Arrival arrival = Receive(QDeadlineTimer(0));
    if (arrival != Arrival::Bytes || !session_.IsOpen()) return arrival == Arrival::Late;
  }
  return false;
}

void WireChannel::Disconnect(ConnectionState problem) {
  line_.reset();
  session_.Closed(problem);
}

void WireChannel::Drive(const SessionStep& step) {
  switch (step.kind) {
    case SessionStep::Kind::Connect: {
      auto problem = ConnectionState::NotReachable;
      line_ = Open(QDeadlineTimer(step.until), problem);
      return line_ ? session_.Connected() : session_.NotConnected(problem);
    }
    case SessionStep::Kind::Send:
      return Write(step);
    case SessionStep::Kind::Close:
      return line_.reset();
    default:
      if (Receive(QDeadlineTimer(step.until)) == Arrival::Broken) {
        Disconnect(ConnectionState::Lost);
      }
  }
}

void WireChannel::Write(const SessionStep& step) {
  const QDeadlineTimer deadline(step.until);
  const auto size = static_cast<qint64>(step.bytes.size());
  if (line_->write(step.bytes.data(), size) != size) return Disconnect(ConnectionState::Lost);
  while (line_->bytesToWrite() > 0) {
    if (line_->waitForBytesWritten(Remaining(deadline))) continue;
    return Disconnect(IsAlive(*line_) ? ConnectionState::NoAnswer : ConnectionState::Lost);
  }
}

WireChannel::Arrival WireChannel::Receive(const QDeadlineTimer& deadline) {
  if (line_->bytesAvailable() == 0 && !line_->waitForReadyRead(Remaining(deadline)) &&
      line_->bytesAvailable() == 0) {
    return IsAlive(*line_) ? Arrival::Late : Arrival::Broken;
  }
  std::array<char, 4096> piece;
  const qint64 size = line_->read(piece.data(), piece.size());
  if (size <= 0) return Arrival::Broken;
  session_.Received({piece.data(), static_cast<std::size_t>(size)});
  return Arrival::Bytes;
}

}  // namespace AdvancedControl
