#include "simulator/WireServer.h"

#include <utility>

#include <QIODevice>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "simulator/WireResponder.h"

namespace {

constexpr qint64 kLargestPiece = 4096;
constexpr std::size_t kLargestBacklog = 256UL * 1024;
constexpr auto kTimeForHello = std::chrono::seconds(10);

/// One connection. Ends itself with its line.
class Session final : public QObject {
 public:
  Session(std::unique_ptr<QIODevice> line, ProjectorChannel& projector, const LineFault& fault,
          QObject* parent)
      : QObject(parent), line_(line.release()), responder_(projector), replies_(*line_, fault) {
    line_->setParent(this);
    connect(line_, &QIODevice::readyRead, this, &Session::Read);
    connect(line_, &QIODevice::aboutToClose, this, &QObject::deleteLater);
    if (auto* socket = qobject_cast<QTcpSocket*>(line_)) {
      socket->setReadBufferSize(kLargestPiece);
      socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
      connect(socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
      // A peer that connects and says nothing does not keep its place.
      QTimer::singleShot(kTimeForHello, this, [this] {
        if (!responder_.IsGreeted()) deleteLater();
      });
    }
    Read();
  }

 private:
  void Read() {
    while (line_->bytesAvailable() > 0) {
      const QByteArray piece = line_->read(kLargestPiece);
      if (piece.isEmpty()) return;
      replies_.Send(responder_.Receive({piece.data(), static_cast<std::size_t>(piece.size())}));
    }
    // A peer that asks and does not listen is not served on.
    if (replies_.Backlog() > kLargestBacklog) deleteLater();
  }

  QIODevice* const line_;
  WireResponder responder_;
  FaultyLine replies_;
};

}  // namespace

struct WireServer::Parts {
  std::shared_ptr<ProjectorChannel> projector;
  LineFault fault;
  QTcpServer server{};
  QObject sessions{};
};

WireServer::WireServer(std::shared_ptr<ProjectorChannel> projector)
    : parts_(new Parts{.projector = std::move(projector), .fault = {}}) {
  QTcpServer& server = parts_->server;
  QObject::connect(&server, &QTcpServer::newConnection, &server, [this, &server] {
    while (std::unique_ptr<QTcpSocket> socket{server.nextPendingConnection()}) {
      if (parts_->sessions.children().size() < kMaximumConnections) Serve(std::move(socket));
    }
  });
}

WireServer::~WireServer() = default;

std::uint16_t WireServer::Listen(const QHostAddress& address, std::uint16_t port) {
  return parts_->server.listen(address, port) ? parts_->server.serverPort() : std::uint16_t{0};
}

std::string WireServer::ErrorText() const { return parts_->server.errorString().toStdString(); }

void WireServer::Serve(std::unique_ptr<QIODevice> line) {
  new Session(std::move(line), *parts_->projector, parts_->fault, &parts_->sessions);
}

void WireServer::SetFault(const LineFault& fault) { parts_->fault = fault; }
