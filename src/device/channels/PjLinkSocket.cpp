#include "device/channels/PjLinkSocket.h"

#include <algorithm>
#include <cstdint>
#include <thread>
#include <utility>

#include <QDeadlineTimer>
#include <QTcpSocket>

#include "device/channels/ConnectSocket.h"

namespace AdvancedControl {

namespace {

using Clock = std::chrono::steady_clock;

constexpr qint64 kReadBuffer = 512;
constexpr int kMostPieces = 8;  // of unsolicited data, read at once

}  // namespace

PjLinkSocket::PjLinkSocket(std::string host, int port, PjLinkConnection& connection)
    : host_(std::move(host)), port_(port), connection_(connection) {}

PjLinkSocket::~PjLinkSocket() = default;

bool PjLinkSocket::HasValidAddress() const {
  return !host_.empty() && port_ >= 1 && port_ <= UINT16_MAX;
}

std::string PjLinkSocket::Address() const { return host_ + ':' + std::to_string(port_); }

void PjLinkSocket::Perform(const PjLinkStep& step) {
  switch (step.kind) {
    case PjLinkStep::Kind::Connect:
      return Connect(step);
    case PjLinkStep::Kind::Send:
      socket_->write(step.bytes.data(), static_cast<qint64>(step.bytes.size()));
      return;
    case PjLinkStep::Kind::Close:
      return socket_.reset();
    default:
      return Listen(
          std::max(std::chrono::ceil<std::chrono::milliseconds>(step.until - Clock::now()),
                   std::chrono::milliseconds::zero()));
  }
}

void PjLinkSocket::ReceiveUnsolicited() {
  for (int i = 0; socket_ && i < kMostPieces && socket_->waitForReadyRead(0); ++i) {
    connection_.Received(socket_->readAll().toStdString(), Clock::now());
  }
  Listen(std::chrono::milliseconds::zero());
}

void PjLinkSocket::Close() {
  socket_.reset();
  connection_.Closed(Clock::now());
}

void PjLinkSocket::Connect(const PjLinkStep& step) {
  auto problem = ConnectionState::NotReachable;
  socket_ = ConnectSocket(host_, static_cast<std::uint16_t>(port_), kReadBuffer,
                          QDeadlineTimer(step.until), problem);
  if (socket_) {
    connection_.Connected();
  } else {
    connection_.NotConnected(problem, Clock::now());
  }
}

void PjLinkSocket::Listen(std::chrono::milliseconds time) {
  if (!socket_) return std::this_thread::sleep_for(time);
  const bool isReady =
      socket_->bytesAvailable() > 0 || socket_->waitForReadyRead(static_cast<int>(time.count()));
  if (isReady) connection_.Received(socket_->readAll().toStdString(), Clock::now());
  if (socket_->state() == QAbstractSocket::ConnectedState || socket_->bytesAvailable() > 0) return;
  Close();
}

}  // namespace AdvancedControl
