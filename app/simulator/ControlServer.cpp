#include "app/simulator/ControlServer.h"

#include <functional>
#include <memory>
#include <utility>

#include <QTcpSocket>

#include "simulator/ServedConnection.h"

namespace {

constexpr int kMaximumConnections = 4;
constexpr qint64 kLongestLine = 256;

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

ControlServer::ControlServer(ControlledProjectors& projectors, std::uint64_t seed)
    : projectors_(projectors),
      seed_(seed),
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
