#include "simulator/WireServer.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QIODevice>
#include <QTcpSocket>
#include <QTimer>

#include "simulator/TcpListener.h"
#include "simulator/WireResponder.h"

namespace {

constexpr qint64 kLargestPiece = 4096;
constexpr std::size_t kLargestBacklog = 256UL * 1024;
constexpr auto kTimeForHello = std::chrono::seconds(10);
constexpr auto kIdle = std::chrono::milliseconds(200);

using Clock = std::chrono::steady_clock;

/// One connection. Deletes itself when its line closes.
class Session final : public QObject {
 public:
  Session(std::unique_ptr<QIODevice> line, ProjectorChannel& projector, const LineFault& fault,
          QObject* parent)
      : QObject(parent), line_(line.release()), responder_(projector), replies_(*line_, fault) {
    line_->setParent(this);
    connect(line_, &QIODevice::readyRead, this, &Session::Read);
    connect(line_, &QIODevice::aboutToClose, this, &QObject::deleteLater);
    if (auto* socket = qobject_cast<QTcpSocket*>(line_)) {
      socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
      connect(socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
      // Closes the connection of a peer that sends nothing.
      QTimer::singleShot(kTimeForHello, this, [this] {
        if (!responder_.IsGreeted()) deleteLater();
      });
    }
    Read();
  }

  bool IsIdle() const { return replies_.Backlog() == 0 && Clock::now() - lastRead_ >= kIdle; }
  Clock::time_point LastRead() const { return lastRead_; }

 private:
  void Read() {
    lastRead_ = Clock::now();
    while (line_->bytesAvailable() > 0) {
      const QByteArray piece = line_->read(kLargestPiece);
      if (piece.isEmpty()) return;
      replies_.Send(responder_.Receive({piece.data(), static_cast<std::size_t>(piece.size())}));
    }
    // Closes the connection of a peer that sends requests without reading the replies.
    if (replies_.Backlog() > kLargestBacklog) deleteLater();
  }

  QIODevice* const line_;
  WireResponder responder_;
  FaultyLine replies_;
  Clock::time_point lastRead_{};
};

}  // namespace

struct WireServer::Parts {
  explicit Parts(std::shared_ptr<ProjectorChannel> served) : projector(std::move(served)) {
    again.setSingleShot(true);
    QObject::connect(&again, &QTimer::timeout, &server, [this] { ServeWaiting(); });
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] { ServeWaiting(); });
  }

  void ServeWaiting();
  bool HasRoom();

  std::shared_ptr<ProjectorChannel> projector;
  LineFault fault{};
  QTimer again;
  TcpListener server{kLargestPiece};
  QObject lines;
  QObject connections;
};

void WireServer::Parts::ServeWaiting() {
  while (server.hasPendingConnections()) {
    if (!HasRoom()) return again.start(kIdle);
    std::unique_ptr<QTcpSocket> socket(server.nextPendingConnection());
    if (socket->state() != QAbstractSocket::ConnectedState) continue;  // disconnected while it waited
    new Session(std::move(socket), *projector, fault, &connections);
  }
}

bool WireServer::Parts::HasRoom() {
  const auto& open = connections.children();
  if (open.size() < kMaximumConnections) return true;
  const auto longest = std::ranges::min_element(open, {}, [](QObject* child) {
    const auto* const session = static_cast<Session*>(child);
    return std::pair(!session->IsIdle(), session->LastRead());
  });
  if (!static_cast<Session*>(*longest)->IsIdle()) return false;
  delete *longest;
  return true;
}

WireServer::WireServer(std::shared_ptr<ProjectorChannel> projector)
    : parts_(std::make_unique<Parts>(std::move(projector))) {}

WireServer::~WireServer() = default;

std::uint16_t WireServer::Listen(const QHostAddress& address, std::uint16_t port) {
  return parts_->server.listen(address, port) ? parts_->server.serverPort() : std::uint16_t{0};
}

std::string WireServer::ErrorText() const { return parts_->server.errorString().toStdString(); }

void WireServer::Serve(std::unique_ptr<QIODevice> line) {
  new Session(std::move(line), *parts_->projector, parts_->fault, &parts_->lines);
}

void WireServer::SetFault(const LineFault& fault) { parts_->fault = fault; }
