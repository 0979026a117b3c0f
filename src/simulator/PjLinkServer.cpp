#include "simulator/PjLinkServer.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include <QHostAddress>
#include <QRandomGenerator>
#include <QTcpSocket>
#include <QTimer>

#include "device/protocol/PjLinkLine.h"
#include "device/protocol/PjLinkReader.h"
#include "simulator/ServedConnection.h"
#include "simulator/TcpListener.h"

namespace AdvancedControl {

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

class Session final : public ServedConnection {
 public:
  Session(std::unique_ptr<QTcpSocket> socket, const PjLinkServer::Options& options,
          PjLinkResponder& responder, const LineFault& fault)
      : socket_(*socket.release()), responder_(responder), replies_(socket_, fault) {
    socket_.setParent(this);
    std::string seed;
    if (!options.password.empty()) {
      seed = NewSeed();
      wantedProof_ = PjLink::Digest(seed, options.password);
    }
    connect(&idle_, &QTimer::timeout, this, [this] { socket_.abort(); });
    connect(&socket_, &QTcpSocket::readyRead, this, &Session::AnswerAll);
    connect(&socket_, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    idle_.start(options.idle);
    const std::string greeting = PjLink::FormatGreeting(seed);
    if (fault.kind == LineFault::Kind::Cut) {
      socket_.write((greeting + '\r').c_str());  // the greeting is not cut
    } else {
      Send(greeting);
    }
    AnswerAll();
  }

 protected:
  std::size_t Backlog() const override { return replies_.Backlog(); }

 private:
  void AnswerAll() {
    NoteRead();
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
  std::string wantedProof_;  ///< Expected before the next request; empty once received, or without
                             ///< a password.
};

}  // namespace

struct PjLinkServer::State {
  State(std::shared_ptr<ProjectorChannel> projector, Options&& given)
      : options(std::move(given)), responder(std::move(projector), options.served) {}

  const Options options;
  PjLinkResponder responder;
  LineFault fault{};
  TcpListener server{{.connections = options.connections, .readBuffer = kReadBuffer},
                     [this](std::unique_ptr<QTcpSocket> socket) {
                       return new Session(std::move(socket), options, responder, fault);
                     }};
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

void PjLinkServer::Close() { state_->server.CloseAll(); }

void PjLinkServer::SetFault(const LineFault& fault) { state_->fault = fault; }

}  // namespace AdvancedControl
