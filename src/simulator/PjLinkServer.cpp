#include "simulator/PjLinkServer.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include <QHostAddress>
#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTimer>

#include "device/PjLinkLine.h"
#include "device/PjLinkReader.h"
#include "simulator/TcpListener.h"

namespace {

constexpr qint64 kReadBuffer = 512;
/// Bytes of replies that a client may leave unread.
constexpr std::size_t kMostUnread = 65536;

std::string NewSeed() {
  constexpr int kDigits = 8;
  constexpr int kHexadecimal = 16;
  return QString::number(QRandomGenerator::global()->generate(), kHexadecimal)
      .rightJustified(kDigits, QLatin1Char('0'))
      .toStdString();
}

/// One connection. Deleted with its socket.
class Session final : public QObject {
 public:
  Session(QTcpSocket& socket, const PjLinkServer::Options& options, PjLinkResponder& responder,
          const LineFault& fault)
      : QObject(&socket), socket_(socket), responder_(responder), replies_(socket, fault) {
    std::string seed;
    if (!options.password.empty()) {
      seed = NewSeed();
      wantedProof_ = PjLink::Digest(seed, options.password);
    }
    connect(&idle_, &QTimer::timeout, this, [this] { socket_.abort(); });
    connect(&socket, &QTcpSocket::readyRead, this, &Session::AnswerAll);
    idle_.start(options.idle);
    const std::string greeting = PjLink::FormatGreeting(seed);
    if (fault.kind == LineFault::Kind::Cut) {
      socket_.write((greeting + '\r').c_str());  // the greeting is not cut
    } else {
      Send(greeting);
    }
    AnswerAll();
  }

 private:
  void AnswerAll() {
    while (isServed_ && socket_.state() == QAbstractSocket::ConnectedState) {
      if (const auto line = reader_.Next()) {
        Answer(*line);
        continue;
      }
      const QByteArray piece = socket_.read(kReadBuffer);
      if (piece.isEmpty()) return;
      reader_.Add(piece.toStdString());
      if (reader_.IsTooLong()) socket_.abort();
    }
  }

  void Answer(std::string_view line) {
    if (!line.starts_with(wantedProof_)) {
      Send(PjLink::kWrongPassword);
      return End();
    }
    const auto answer = responder_.Answer(line.substr(wantedProof_.size()));
    wantedProof_.clear();
    if (!answer) return End();
    Send(*answer);
    idle_.start();
  }

  void End() {
    isServed_ = false;
    replies_.Close();
  }

  void Send(std::string_view line) {
    replies_.Send(std::string(line) + '\r');
    if (replies_.Backlog() > kMostUnread) socket_.abort();
  }

  QTcpSocket& socket_;
  PjLinkResponder& responder_;
  FaultyLine replies_;
  QTimer idle_;
  PjLinkReader reader_;
  bool isServed_ = true;
  std::string wantedProof_;  ///< Expected before the next request; empty once received, or without a password.
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
  TcpListener server{kReadBuffer};  // declared last: its sockets use the other members
};

void PjLinkServer::State::ServeWaiting() {
  while (served < options.connections && server.hasPendingConnections()) {
    QTcpSocket* const socket = server.nextPendingConnection();
    if (socket->state() != QAbstractSocket::ConnectedState) {  // disconnected while it waited
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
