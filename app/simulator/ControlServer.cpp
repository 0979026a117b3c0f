#include "app/simulator/ControlServer.h"

#include <QTcpSocket>

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
    : projectors_(projectors), server_(kLongestLine) {
  server_.setMaxPendingConnections(kMaximumConnections);
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
      if (server_.findChildren<QTcpSocket*>().size() > kMaximumConnections) {
        delete socket;
        continue;
      }
      QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
      QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        while (socket->canReadLine()) {
          const QString line = QString::fromUtf8(socket->readLine()).trimmed();
          socket->write(Execute(line).toUtf8() + '\n');
        }
        if (socket->bytesAvailable() >= kLongestLine) socket->abort();  // too long for a command
      });
    }
  });
}

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
