#include "simulator/TcpListener.h"

#include <chrono>

#include <QTcpSocket>
#include <QTimer>

namespace {

constexpr std::chrono::milliseconds kPauseAfterFailure{100};

}  // namespace

TcpListener::TcpListener(qint64 readBuffer) : readBuffer_(readBuffer) {
  connect(this, &QTcpServer::acceptError, this, [this] {  // Qt has stopped accepting
    QTimer::singleShot(kPauseAfterFailure, this, [this] {
      if (isListening()) resumeAccepting();
    });
  });
}

void TcpListener::incomingConnection(qintptr descriptor) {
  auto* const socket = new QTcpSocket(this);
  socket->setReadBufferSize(readBuffer_);
  socket->setSocketDescriptor(descriptor);
  addPendingConnection(socket);
}
