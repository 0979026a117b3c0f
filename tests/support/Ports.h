#pragma once

#include <QCoreApplication>
#include <QHostAddress>
#include <QTcpServer>

/// The first of two ports beside each other that are free on the loopback address, and others in
/// each call. They are below the range for outgoing connections: a server that stops finds them
/// free when it starts again.
inline quint16 LastingPort() {
  const auto isFree = [](int port) {
    return QTcpServer().listen(QHostAddress::LocalHost, static_cast<quint16>(port));
  };
  static int next = 10'000 + 64 * static_cast<int>(QCoreApplication::applicationPid() % 300);
  int port = next;
  while (!isFree(port) || !isFree(port + 1)) port += 2;
  next = port + 2;
  return static_cast<quint16>(port);
}
