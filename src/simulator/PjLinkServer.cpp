#include "simulator/PjLinkServer.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

#include "simulator/PjLinkProjectorSession.h"
#include "simulator/TcpListener.h"

namespace {

constexpr qint64 kReadBuffer = 512;
/// Replies that a client may leave unread.
constexpr std::size_t kMostUnread = 65536;

/// One connection, as long as its socket lives.
class Session final : public QObject {
 public:
  Session(QTcpSocket& socket, const PjLinkServer::Options& options, PjLinkResponder& responder,
          const LineFault& fault)
      : QObject(&socket),
        socket_(socket),
        session_(responder, options.password),
        replies_(socket, fault) {
    connect(&idle_, &QTimer::timeout, this, [this] { socket_.abort(); });
    connect(&socket, &QTcpSocket::readyRead, this, &Session::AnswerAll);
    idle_.start(options.idle);
    if (fault.kind == LineFault::Kind::Cut) {
      socket_.write(session_.Greeting().c_str());  // it is no reply
    } else {
      Send(session_.Greeting());
    }
    AnswerAll();
  }

 private:
  void AnswerAll() {
    while (!session_.IsOver() && socket_.state() == QAbstractSocket::ConnectedState) {
      if (const auto exchange = session_.Next()) {
        Send(exchange->reply);
        idle_.start();
        continue;
      }
      if (session_.IsOver()) return socket_.abort();  // a line without end
      const QByteArray piece = socket_.read(kReadBuffer);
      if (piece.isEmpty()) return;
      session_.Add({piece.data(), static_cast<std::size_t>(piece.size())});
    }
    if (session_.IsOver()) replies_.Close();
  }

  void Send(std::string_view line) {
    replies_.Send(line);
    if (replies_.Backlog() > kMostUnread) socket_.abort();
  }

  QTcpSocket& socket_;
  PjLinkProjectorSession session_;
  FaultyLine replies_;
  QTimer idle_;
};

}  // namespace

struct PjLinkServer::State {
  State(std::shared_ptr<ProjectorChannel> projector, Options&& given)
      : options(std::move(given)), responder(std::move(projector), options.served) {
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] { ServeWaiting(); });
  }

  void ServeWaiting();

  const Options options;
  PjLinkResponder responder;
  LineFault fault{};
  std::size_t served = 0;
  TcpListener server{kReadBuffer};  // the first to go, with its sockets, which use the others
};

void PjLinkServer::State::ServeWaiting() {
  while (served < options.connections && server.hasPendingConnections()) {
    QTcpSocket* const socket = server.nextPendingConnection();
    if (socket->state() != QAbstractSocket::ConnectedState) {  // left while it waited
      socket->deleteLater();
      continue;
    }
    ++served;
    QObject::connect(socket, &QTcpSocket::disconnected, &server, [this, socket] {
      --served;
      socket->deleteLater();
      ServeWaiting();
    });
    new Session(*socket, options, responder, fault);
  }
}

PjLinkServer::PjLinkServer(std::shared_ptr<ProjectorChannel> projector, Options options)
    : state_(std::make_unique<State>(std::move(projector), std::move(options))) {}

PjLinkServer::~PjLinkServer() = default;

bool PjLinkServer::Listen(const std::string& address, int port) {
  const QHostAddress host(QString::fromStdString(address));
  return !host.isNull() && port >= 0 && port <= UINT16_MAX &&
         state_->server.listen(host, static_cast<quint16>(port));
}

int PjLinkServer::Port() const { return state_->server.serverPort(); }

void PjLinkServer::Close() {
  state_->server.close();
  for (QTcpSocket* const socket : state_->server.findChildren<QTcpSocket*>()) socket->abort();
}

void PjLinkServer::SetFault(const LineFault& fault) { state_->fault = fault; }
