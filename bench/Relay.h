#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <utility>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

/// Forwards the bytes of each side after half a round trip.
class Relay {
 public:
  Relay(std::uint16_t target, std::chrono::milliseconds roundTrip) : oneWay_(roundTrip / 2) {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this, target] {
      QTcpSocket* program = server_.nextPendingConnection();
      auto* projector = new QTcpSocket(program);
      projector->connectToHost(QHostAddress::LocalHost, target);
      projectorSpoke_ = true;
      Pass(program, projector,
           [this] { exchanges_ += std::exchange(projectorSpoke_, false) ? 1 : 0; });
      Pass(projector, program, [this] { projectorSpoke_ = true; });
      QObject::connect(program, &QTcpSocket::disconnected, program, &QObject::deleteLater);
    });
  }

  std::uint16_t Port() const { return server_.serverPort(); }

  /// The number of exchanges so far: runs of messages from the program without one from the
  /// projector in between. Any thread.
  int Exchanges() const { return exchanges_; }

 private:
  void Pass(QTcpSocket* from, QTcpSocket* to, auto count) {
    from->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    QObject::connect(from, &QTcpSocket::readyRead, to, [=, delay = oneWay_] {
      count();
      QTimer::singleShot(delay, Qt::PreciseTimer, to,
                         [to, bytes = from->readAll()] { to->write(bytes); });
    });
  }

  const std::chrono::milliseconds oneWay_;
  std::atomic<int> exchanges_ = 0;
  bool projectorSpoke_ = false;
  QTcpServer server_;
};
