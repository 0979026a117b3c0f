#include "simulator/WireServer.h"

#include <chrono>
#include <utility>

#include <QIODevice>
#include <QTcpSocket>
#include <QTimer>

#include "simulator/ServedConnection.h"
#include "simulator/TcpListener.h"
#include "simulator/WireResponder.h"

namespace AdvancedControl {

namespace {

constexpr qint64 kLargestPiece = 4096;
constexpr std::size_t kLargestBacklog = 256UL * 1024;
constexpr auto kTimeForHello = std::chrono::seconds(10);

class Session final : public ServedConnection {
 public:
  Session(std::unique_ptr<QIODevice> line, ProjectorChannel& projector, const LineFault& fault)
      : line_(line.release()), responder_(projector), replies_(*line_, fault) {
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

 protected:
  std::size_t Backlog() const override { return replies_.Backlog(); }

 private:
  void Read() {
    NoteRead();
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
};

}  // namespace

struct WireServer::Parts {
  explicit Parts(std::shared_ptr<ProjectorChannel> served) : projector(std::move(served)) {}

  Session* Serve(std::unique_ptr<QIODevice> line) {
    return new Session(std::move(line), *projector, fault);
  }

  std::shared_ptr<ProjectorChannel> projector;
  LineFault fault{};
  QObject lines;
  TcpListener server{
      {.connections = kMaximumConnections, .readBuffer = kLargestPiece},
      [this](std::unique_ptr<QTcpSocket> socket) { return Serve(std::move(socket)); }};
};

WireServer::WireServer(std::shared_ptr<ProjectorChannel> projector)
    : parts_(std::make_unique<Parts>(std::move(projector))) {}

WireServer::~WireServer() = default;

std::uint16_t WireServer::Listen(const QHostAddress& address, std::uint16_t port) {
  return parts_->server.listen(address, port) ? parts_->server.serverPort() : std::uint16_t{0};
}

std::string WireServer::ErrorText() const { return parts_->server.errorString().toStdString(); }

void WireServer::Serve(std::unique_ptr<QIODevice> line) {
  parts_->Serve(std::move(line))->setParent(&parts_->lines);
}

void WireServer::SetFault(const LineFault& fault) { parts_->fault = fault; }

}  // namespace AdvancedControl
