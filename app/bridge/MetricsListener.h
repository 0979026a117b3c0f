#pragma once

#include <chrono>
#include <functional>

#include <QByteArray>
#include <QHostAddress>
#include <QTcpServer>

#include "app/bridge/HttpRequest.h"

/// Answers GET requests over HTTP, for as many clients as metrics stores and their checks need.
/// Lives on the main thread.
class MetricsListener {
 public:
  static constexpr int kMostClients = 8;  ///< Further clients are refused.

  struct Answer {
    int status = 200;
    QByteArray body{};
  };
  using Answering = std::function<Answer(const HttpRequest& request)>;

  /// A client that takes longer is sent away.
  explicit MetricsListener(Answering answering,
                           std::chrono::milliseconds longest = std::chrono::seconds(10));

  /// Listens, and returns the port or an error. Port 0 chooses a free one.
  struct Listening {
    quint16 port = 0;
    QString error{};
  };
  Listening Listen(const QHostAddress& address, quint16 port);

 private:
  void Accept();

  const Answering answering_;
  const std::chrono::milliseconds longest_;
  int clients_ = 0;
  QTcpServer server_;  ///< Ends first, with its clients.
};
