#include "app/simulator/ControlServer.h"

#include <QTcpSocket>

namespace {

constexpr int kMaximumConnections = 4;
constexpr qint64 kLongestLine = 256;

}  // namespace

ControlServer::ControlServer(ControlledProjectors& projectors, std::uint64_t seed)
    : projectors_(projectors), seed_(seed), server_(kLongestLine) {
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
          socket->write(Obey(line).toUtf8() + '\n');
        }
        if (socket->bytesAvailable() >= kLongestLine) socket->abort();  // no line of ours
      });
    }
  });
}

std::uint16_t ControlServer::Listen(std::uint16_t port) {
  return server_.listen(QHostAddress::LocalHost, port) ? server_.serverPort() : std::uint16_t{0};
}

QString ControlServer::Obey(const QString& line) {
  const QString first = line.section(QLatin1Char(' '), 0, 0);
  const bool all = first == QLatin1String("*");
  const std::size_t number = first.toULongLong();
  if (!all && (number < 1 || number > projectors_.Count())) {
    return QStringLiteral("error: no projector '%1'; there are 1 to %2, and *")
        .arg(first)
        .arg(projectors_.Count());
  }
  const QString rest = line.section(QLatin1Char(' '), 1);
  const auto share = ParseFault(rest);
  if (!share || (!all && share->percent < 100)) {
    const auto answer = projectors_.Obey(all ? std::nullopt : std::optional(number - 1), rest);
    return answer.value_or(QStringLiteral("error: faults are %1").arg(QLatin1String(kFaultNames)));
  }
  if (!all) {
    projectors_.SetFault(number - 1, share->fault);
    return QStringLiteral("ok");
  }
  const auto faults = Distribute({&*share, 1}, projectors_.Count(), seed_);
  for (std::size_t i = 0; i < faults.size(); ++i) projectors_.SetFault(i, faults[i]);
  return QStringLiteral("ok");
}
