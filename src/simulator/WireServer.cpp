#include "simulator/WireServer.h"

#include <utility>

#include <QIODevice>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "simulator/WireResponder.h"

namespace {

constexpr qint64 kLargestPiece = 4096;
constexpr qint64 kLargestBacklog = 256L * 1024;
constexpr auto kTimeForHello = std::chrono::seconds(10);

/// One connection. Ends itself with its line.
class Session final : public QObject {
 public:
  Session(std::unique_ptr<QIODevice> line, ProjectorChannel& projector, const LineFault& fault,
          QObject* parent)
      : QObject(parent), line_(line.release()), responder_(projector), fault_(fault) {
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
      Send(responder_.Receive({piece.data(), static_cast<std::size_t>(piece.size())}));
    }
    // A peer that asks and does not listen is not served on.
    if (line_->bytesToWrite() > kLargestBacklog) deleteLater();
  }

  void Send(const std::string& reply) {
    if (reply.empty() || cut_) return;
    const QByteArray bytes(reply.data(), static_cast<qsizetype>(reply.size()));
    switch (fault_.kind) {
      case LineFault::Kind::None:
        line_->write(bytes);
        break;
      case LineFault::Kind::Silent:
        break;
      case LineFault::Kind::Late:
        QTimer::singleShot(fault_.amount, this, [this, bytes] { line_->write(bytes); });
        break;
      case LineFault::Kind::Cut:
        cut_ = true;
        line_->write(bytes.left(fault_.amount));
        Close();
        break;
      case LineFault::Kind::Garbage:
        line_->write(QByteArray(bytes.size(), '?'));
        break;
      case LineFault::Kind::Trickle:
        Trickle(bytes);
        break;
    }
  }

  void Trickle(const QByteArray& bytes) {
    trickling_ += bytes;
    if (trickling_.size() > bytes.size()) return;  // the rest is on its way already
    TrickleOn();
  }

  void TrickleOn() {
    line_->write(trickling_.left(1));
    trickling_.remove(0, 1);
    if (!trickling_.isEmpty()) QTimer::singleShot(1, this, &Session::TrickleOn);
  }

  void Close() {
    if (auto* socket = qobject_cast<QTcpSocket*>(line_)) {
      socket->disconnectFromHost();
    } else {
      deleteLater();
    }
  }

  QIODevice* const line_;
  WireResponder responder_;
  const LineFault& fault_;
  QByteArray trickling_;
  bool cut_ = false;
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
