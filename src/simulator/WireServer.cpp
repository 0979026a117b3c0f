#include "simulator/WireServer.h"

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

class Session final : public ServedConnection {
 public:
  Session(std::unique_ptr<QIODevice> line, ProjectorChannel& projector, const LineFault& fault,
          std::chrono::milliseconds timeForHello)
      : line_(line.release()), responder_(projector), replies_(*line_, fault) {
    line_->setParent(this);
    connect(line_, &QIODevice::readyRead, this, &Session::Read);
    connect(line_, &QIODevice::aboutToClose, this, &QObject::deleteLater);
    if (auto* socket = qobject_cast<QTcpSocket*>(line_)) {
      socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
      connect(socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
      // Closes the connection of a peer that sends nothing.
      QTimer::singleShot(timeForHello, this, [this] {
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
    for (QByteArray piece = line_->read(kLargestPiece); !piece.isEmpty();
         piece = line_->read(kLargestPiece)) {
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
  Parts(std::shared_ptr<ProjectorChannel> served, std::chrono::milliseconds time)
      : projector(std::move(served)), timeForHello(time) {}

  Session* Serve(std::unique_ptr<QIODevice> line) {
    return new Session(std::move(line), *projector, fault, timeForHello);
  }

  std::shared_ptr<ProjectorChannel> projector;
  const std::chrono::milliseconds timeForHello;
  LineFault fault{};
  QObject lines;
  TcpListener server{
      {.connections = kMaximumConnections, .readBuffer = kLargestPiece},
      [this](std::unique_ptr<QTcpSocket> socket) { return Serve(std::move(socket)); }};
};

WireServer::WireServer(std::shared_ptr<ProjectorChannel> projector,
                       std::chrono::milliseconds timeForHello)
    : parts_(std::make_unique<Parts>(std::move(projector), timeForHello)) {}

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
