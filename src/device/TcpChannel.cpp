#include "device/TcpChannel.h"

#include <QDeadlineTimer>
#include <QHostAddress>
#include <QHostInfo>
#include <QNetworkProxy>
#include <QTcpSocket>

namespace {

constexpr qint64 kReadAhead = 64L * 1024;

QList<QHostAddress> Addresses(const QString& host) {
  if (const QHostAddress address(host); !address.isNull()) return {address};
  return QHostInfo::fromName(host).addresses();
}

}  // namespace

std::unique_ptr<QIODevice> TcpChannel::Open(const QDeadlineTimer& deadline,
                                            ConnectionState& problem) {
  const QList<QHostAddress> addresses = Addresses(QString::fromStdString(host_));
  if (addresses.isEmpty()) problem = ConnectionState::NameUnknown;
  for (qsizetype i = 0; i < addresses.size(); ++i) {
    auto socket = std::make_unique<QTcpSocket>();
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(kReadAhead);
    socket->connectToHost(addresses[i], port_);
    // An address that swallows everything leaves time for the others.
    const qint64 share = deadline.remainingTime() / (addresses.size() - i);
    if (!socket->waitForConnected(static_cast<int>(share))) continue;
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    return socket;
  }
  return nullptr;
}

bool TcpChannel::IsAlive(QIODevice& line) const {
  return static_cast<QTcpSocket&>(line).state() == QAbstractSocket::ConnectedState;
}
