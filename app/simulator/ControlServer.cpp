#include "app/simulator/ControlServer.h"

#include <functional>
#include <memory>
#include <utility>

#include <QTcpSocket>

#include "simulator/ServedConnection.h"

namespace {

constexpr int kMaximumConnections = 4;
constexpr qint64 kLongestLine = 256;
constexpr int kLongestDelay = 60'000;

struct NamedFault {
  const char* name;
  ServiceFault fault;
  bool hasAmount = false;
};

constexpr NamedFault kFaults[] = {
    {"none", {}},
    {"refuse", {.projector = Fault::Kind::Refuse}},
    {"fail-read", {.projector = Fault::Kind::FailRead}},
    {"silent", {.line = {LineFault::Kind::Silent}}},
    {"late", {.line = {LineFault::Kind::Late}}, true},
    {"cut", {.line = {LineFault::Kind::Cut}}, true},
    {"garbage", {.line = {LineFault::Kind::Garbage}}},
    {"trickle", {.line = {LineFault::Kind::Trickle}}},
};

class Session final : public ServedConnection {
 public:
  Session(std::unique_ptr<QTcpSocket> socket, std::function<QString(const QString&)> obey)
      : socket_(*socket.release()), obey_(std::move(obey)) {
    socket_.setParent(this);
    connect(&socket_, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    connect(&socket_, &QTcpSocket::readyRead, this, &Session::AnswerAll);
    AnswerAll();
  }

 protected:
  std::size_t Backlog() const override { return static_cast<std::size_t>(socket_.bytesToWrite()); }

 private:
  void AnswerAll() {
    NoteRead();
    while (socket_.canReadLine()) {
      const QString line = QString::fromUtf8(socket_.readLine()).trimmed();
      socket_.write(obey_(line).toUtf8() + '\n');
    }
    if (socket_.bytesAvailable() >= kLongestLine) socket_.abort();  // too long for a command
  }

  QTcpSocket& socket_;
  const std::function<QString(const QString&)> obey_;
};

}  // namespace

std::optional<ServiceFault> ParseFault(const QString& text) {
  const QStringList words = text.simplified().split(QLatin1Char(' '));
  for (const auto& [name, known, hasAmount] : kFaults) {
    if (words.first() != QLatin1String(name) || words.size() != (hasAmount ? 2 : 1)) continue;
    ServiceFault fault = known;
    if (!hasAmount) return fault;
    bool isNumber = false;
    fault.line.amount = words[1].toInt(&isNumber);
    if (isNumber && fault.line.amount >= 0 && fault.line.amount <= kLongestDelay) return fault;
  }
  return std::nullopt;
}

ControlServer::ControlServer(ServedProjectors& projectors)
    : projectors_(projectors),
      server_({.connections = kMaximumConnections, .readBuffer = kLongestLine},
              [this](std::unique_ptr<QTcpSocket> socket) {
                return new Session(std::move(socket),
                                   [this](const QString& line) { return Execute(line); });
              }) {}

std::uint16_t ControlServer::Listen(std::uint16_t port) {
  return server_.listen(QHostAddress::LocalHost, port) ? server_.serverPort() : std::uint16_t{0};
}

QString ControlServer::Execute(const QString& line) {
  const QString first = line.section(QLatin1Char(' '), 0, 0);
  const bool all = first == QLatin1String("*");
  const std::size_t number = first.toULongLong();
  if (!all && (number < 1 || number > projectors_.Count())) {
    return QStringLiteral("error: no projector '%1'; there are 1 to %2, and *")
        .arg(first)
        .arg(projectors_.Count());
  }
  const auto fault = ParseFault(line.section(QLatin1Char(' '), 1));
  if (!fault) return QStringLiteral("error: faults are %1").arg(QLatin1String(kFaultNames));
  for (std::size_t i = 0; i < projectors_.Count(); ++i) {
    if (all || i + 1 == number) projectors_.SetFault(i, *fault);
  }
  return QStringLiteral("ok");
}
