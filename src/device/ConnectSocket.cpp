#include "device/ConnectSocket.h"

#include <QDeadlineTimer>
#include <QHostAddress>
#include <QHostInfo>
#include <QNetworkProxy>
#include <QTcpSocket>

namespace {

QList<QHostAddress> Addresses(const QString& host) {
  if (const QHostAddress address(host); !address.isNull()) return {address};
  return QHostInfo::fromName(host).addresses();
}

}  // namespace

std::unique_ptr<QTcpSocket> ConnectSocket(const std::string& host, std::uint16_t port,
                                          std::int64_t readBuffer, const QDeadlineTimer& deadline,
                                          ConnectionState& problem) {
  const QList<QHostAddress> addresses = Addresses(QString::fromStdString(host));
  problem = addresses.isEmpty() ? ConnectionState::NameUnknown : ConnectionState::NotReachable;
  for (qsizetype i = 0; i < addresses.size(); ++i) {
    auto socket = std::make_unique<QTcpSocket>();
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(readBuffer);
    socket->connectToHost(addresses[i], port);
    // An address that swallows everything leaves time for the others.
    const qint64 share = deadline.remainingTime() / (addresses.size() - i);
    if (!socket->waitForConnected(static_cast<int>(share))) continue;
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    return socket;
  }
  return nullptr;
}
