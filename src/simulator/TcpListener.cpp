#include "simulator/TcpListener.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QTcpSocket>

#include "simulator/ServedConnection.h"

namespace AdvancedControl {

namespace {

constexpr std::chrono::milliseconds kPauseAfterFailure{100};

ServedConnection& Connection(QObject* child) { return *static_cast<ServedConnection*>(child); }

}  // namespace

TcpListener::TcpListener(const Limits& limits, Serve serve)
    : limits_(limits), serve_(std::move(serve)) {
  serveLater_.setSingleShot(true);
  connect(&serveLater_, &QTimer::timeout, this, &TcpListener::ServeWaiting);
  connect(this, &QTcpServer::newConnection, this, &TcpListener::ServeWaiting);
  connect(this, &QTcpServer::acceptError, this, [this] {  // Qt has stopped accepting
    QTimer::singleShot(kPauseAfterFailure, this, [this] {
      if (isListening()) resumeAccepting();
    });
  });
}

void TcpListener::incomingConnection(qintptr descriptor) {
  auto* const socket = new QTcpSocket(this);
  socket->setReadBufferSize(limits_.readBuffer);
  socket->setSocketDescriptor(descriptor);
  addPendingConnection(socket);
}

void TcpListener::ServeWaiting() {
  while (waiting_ || hasPendingConnections()) {
    if (!waiting_) waiting_ = nextPendingConnection();
    // Nobody makes room for one that has disconnected while it waited.
    const bool isThere = waiting_->state() == QAbstractSocket::ConnectedState;
    if (isThere && !HasRoom()) return serveLater_.start(ServedConnection::kIdle);
    std::unique_ptr<QTcpSocket> socket(std::exchange(waiting_, nullptr));
    if (!isThere) continue;
    ServedConnection* const connection = serve_(std::move(socket));
    connection->setParent(&served_);
    connect(connection, &QObject::destroyed, &serveLater_,
            [this] { serveLater_.start(std::chrono::milliseconds::zero()); });
  }
}

bool TcpListener::HasRoom() {
  const auto& open = served_.children();
  if (open.size() < limits_.connections) return true;
  const auto longest = std::ranges::min_element(open, {}, [](QObject* child) {
    return std::pair(!Connection(child).IsIdle(), Connection(child).LastRead());
  });
  if (!Connection(*longest).IsIdle()) return false;
  delete *longest;
  return true;
}

}  // namespace AdvancedControl
