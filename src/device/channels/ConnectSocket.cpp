#include "device/channels/ConnectSocket.h"

#include <chrono>
#include <future>
#include <netdb.h>
#include <thread>
#include <utility>

#include <QDeadlineTimer>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QUrl>

namespace AdvancedControl {

namespace {

// All addresses of a name, in order of preference. Blocks as long as the system takes.
QList<QHostAddress> LookUp(const QByteArray& name) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_ADDRCONFIG;
  addrinfo* found = nullptr;
  if (getaddrinfo(name.constData(), nullptr, &hints, &found) != 0) return {};
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> owner(found, freeaddrinfo);
  QList<QHostAddress> addresses;
  for (; found != nullptr; found = found->ai_next) addresses.append(QHostAddress(found->ai_addr));
  return addresses;
}

// None if the deadline passes. In that case the look-up's thread ends when the system gives up.
QList<QHostAddress> Addresses(const QString& host, const QDeadlineTimer& deadline) {
  if (const QHostAddress address(host); !address.isNull()) return {address};
  const QByteArray name = QUrl::toAce(host);
  if (name.isEmpty()) return {};
  std::packaged_task lookUp([name] { return LookUp(name); });
  auto addresses = lookUp.get_future();
  std::thread(std::move(lookUp)).detach();
  const std::chrono::milliseconds rest(deadline.remainingTime());
  return addresses.wait_for(rest) == std::future_status::ready ? addresses.get()
                                                               : QList<QHostAddress>();
}

}  // namespace

std::unique_ptr<QTcpSocket> ConnectSocket(const std::string& host, std::uint16_t port,
                                          std::int64_t readBuffer, const QDeadlineTimer& deadline,
                                          ConnectionState& problem) {
  const QList<QHostAddress> addresses = Addresses(QString::fromStdString(host), deadline);
  problem = addresses.isEmpty() ? ConnectionState::NameUnknown : ConnectionState::NotReachable;
  for (qsizetype i = 0; i < addresses.size(); ++i) {
    auto socket = std::make_unique<QTcpSocket>();
    socket->setProxy(QNetworkProxy::NoProxy);
    socket->setReadBufferSize(readBuffer);
    socket->connectToHost(addresses[i], port);
    // Each address gets a share of the time, because one that never answers must leave time for the
    // others.
    const qint64 share = deadline.remainingTime() / (addresses.size() - i);
    if (!socket->waitForConnected(static_cast<int>(share))) continue;
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    return socket;
  }
  return nullptr;
}

}  // namespace AdvancedControl
