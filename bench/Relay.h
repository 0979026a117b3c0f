#pragma once

#include <chrono>
#include <cstdint>

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

/// Passes on what each side says, half a round trip later.
class Relay {
 public:
  Relay(std::uint16_t target, std::chrono::milliseconds roundTrip) : oneWay_(roundTrip / 2) {
    server_.listen(QHostAddress::LocalHost);
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this, target] {
      QTcpSocket* program = server_.nextPendingConnection();
      auto* projector = new QTcpSocket(program);
      projector->connectToHost(QHostAddress::LocalHost, target);
      Pass(program, projector);
      Pass(projector, program);
      QObject::connect(program, &QTcpSocket::disconnected, program, &QObject::deleteLater);
    });
  }

  std::uint16_t Port() const { return server_.serverPort(); }

 private:
  void Pass(QTcpSocket* from, QTcpSocket* to) {
    from->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    QObject::connect(from, &QTcpSocket::readyRead, to, [=, delay = oneWay_] {
      QTimer::singleShot(delay, Qt::PreciseTimer, to,
                         [to, bytes = from->readAll()] { to->write(bytes); });
    });
  }

  const std::chrono::milliseconds oneWay_;
  QTcpServer server_;
};
