#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "device/Connect.h"

/// Accepts connections and says nothing.
struct SilentServer {
  QTcpServer server;
  std::vector<std::unique_ptr<QTcpSocket>> connections{};

  explicit SilentServer(QHostAddress::SpecialAddress at = QHostAddress::LocalHost) {
    server.setProxy(QNetworkProxy::NoProxy);  // looking for one takes a thread
    EXPECT_TRUE(server.listen(at));
  }
  TcpAddress Address() const { return {.host = "127.0.0.1", .port = server.serverPort()}; }
  std::size_t Accept() {
    while (auto* const next = server.nextPendingConnection()) connections.emplace_back(next);
    return connections.size();
  }
  /// The connections that neither side has closed.
  std::ptrdiff_t Open() {
    Accept();
    return std::ranges::count(connections, QAbstractSocket::ConnectedState, &QTcpSocket::state);
  }
};
