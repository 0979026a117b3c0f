#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <utility>

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
      projectorSpoke_ = true;
      Pass(program, projector,
           [this] { exchanges_ += std::exchange(projectorSpoke_, false) ? 1 : 0; });
      Pass(projector, program, [this] { projectorSpoke_ = true; });
      QObject::connect(program, &QTcpSocket::disconnected, program, &QObject::deleteLater);
    });
  }

  std::uint16_t Port() const { return server_.serverPort(); }

  /// How often the program has spoken so far, counted anew whenever the projector spoke in between.
  /// From any thread.
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
