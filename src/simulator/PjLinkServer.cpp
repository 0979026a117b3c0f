#include "simulator/PjLinkServer.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

#include "simulator/PjLinkProjectorSession.h"
#include "simulator/ServedConnection.h"
#include "simulator/TcpListener.h"

namespace AdvancedControl {

namespace {

constexpr qint64 kReadBuffer = 512;
/// Bytes of replies that a client may leave unread.
constexpr std::size_t kMostUnread = 65536;

class Session final : public ServedConnection {
 public:
  Session(std::unique_ptr<QTcpSocket> socket, const PjLinkServer::Options& options,
          PjLinkResponder& responder, const LineFault& fault)
      : socket_(*socket.release()),
        session_(responder, options.password),
        replies_(socket_, fault) {
    socket_.setParent(this);
    connect(&idle_, &QTimer::timeout, this, [this] { socket_.abort(); });
    connect(&socket_, &QTcpSocket::readyRead, this, &Session::AnswerAll);
    connect(&socket_, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    idle_.start(options.idle);
    if (fault.kind == LineFault::Kind::Cut) {
      socket_.write(session_.Greeting().c_str());  // the greeting is not cut
    } else {
      Send(session_.Greeting());
    }
    AnswerAll();
  }

 protected:
  std::size_t Backlog() const override { return replies_.Backlog(); }

 private:
  void AnswerAll() {
    NoteRead();
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
      : options(std::move(given)), responder(std::move(projector), options.served) {}

  Session* Serve(std::unique_ptr<QTcpSocket> socket) {
    return new Session(std::move(socket), options, responder, fault);
  }

  const Options options;
  PjLinkResponder responder;
  LineFault fault{};
  QObject others;  ///< Parent of the connections that the port did not accept.
  TcpListener server{
      {.connections = options.connections, .readBuffer = kReadBuffer},
      [this](std::unique_ptr<QTcpSocket> socket) { return Serve(std::move(socket)); }};
};

PjLinkServer::PjLinkServer(std::shared_ptr<ProjectorChannel> projector, Options options)
    : state_(std::make_unique<State>(std::move(projector), std::move(options))) {}

PjLinkServer::~PjLinkServer() = default;

bool PjLinkServer::Listen(const std::string& address, int port) {
  const QHostAddress host(QString::fromStdString(address));
  return !host.isNull() && port >= 0 && port <= UINT16_MAX &&
         state_->server.listen(host, static_cast<quint16>(port));
}

int PjLinkServer::Port() const { return state_->server.serverPort(); }

void PjLinkServer::Serve(std::unique_ptr<QTcpSocket> socket) {
  state_->Serve(std::move(socket))->setParent(&state_->others);
}

void PjLinkServer::SetFault(const LineFault& fault) { state_->fault = fault; }

}  // namespace AdvancedControl
