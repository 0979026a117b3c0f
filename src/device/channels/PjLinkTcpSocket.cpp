#include "device/channels/PjLinkTcpSocket.h"

#include <algorithm>
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

PjLinkTcpSocket::PjLinkTcpSocket(std::string host, std::uint16_t port, PjLinkConnection& connection)
    : host_(std::move(host)), port_(port), connection_(connection) {}

PjLinkTcpSocket::~PjLinkTcpSocket() = default;

void PjLinkTcpSocket::Perform(const SessionStep& step) {
  switch (step.kind) {
    case SessionStep::Kind::Connect:
      return Connect(step);
    case SessionStep::Kind::Send:
      socket_->write(step.bytes.data(), static_cast<qint64>(step.bytes.size()));
      return;
    case SessionStep::Kind::Close:
      return socket_.reset();
    default:
      return Listen(
          std::max(std::chrono::ceil<std::chrono::milliseconds>(step.until - Clock::now()),
                   std::chrono::milliseconds::zero()));
  }
}

void PjLinkTcpSocket::ReceiveUnsolicited() {
  for (int i = 0; socket_ && i < kMostPieces && socket_->waitForReadyRead(0); ++i) {
    connection_.Received(socket_->readAll().toStdString(), Clock::now());
  }
  Listen(std::chrono::milliseconds::zero());
}

void PjLinkTcpSocket::Close() {
  socket_.reset();
  connection_.Closed(Clock::now());
}

void PjLinkTcpSocket::Connect(const SessionStep& step) {
  auto problem = ConnectionState::NotReachable;
  socket_ = ConnectSocket(host_, port_, kReadBuffer, QDeadlineTimer(step.until), problem);
  if (socket_) {
    connection_.Connected();
  } else {
    connection_.NotConnected(problem, Clock::now());
  }
}

void PjLinkTcpSocket::Listen(std::chrono::milliseconds time) {
  if (!socket_) return std::this_thread::sleep_for(time);
  // What has been read into the socket's buffer must not wait for more.
  // unreachable: bytes would have to come while the request is being sent
  if (socket_->bytesAvailable() == 0) socket_->waitForReadyRead(static_cast<int>(time.count()));
  connection_.Received(socket_->readAll().toStdString(), Clock::now());
  if (socket_->state() != QAbstractSocket::ConnectedState) Close();
}

}  // namespace AdvancedControl
