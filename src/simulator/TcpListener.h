#pragma once

#include <functional>
#include <memory>

#include <QTcpServer>
#include <QTimer>

#include "Namespace.h"
#include "ProjectorCommonExport.h"

class QTcpSocket;

namespace AdvancedControl {

class ServedConnection;

/// A TCP port that always accepts the next connection. If the limit of connections is reached, the
/// one that has been idle longest is closed in favour of the new one; while none is idle, the new
/// one waits. If a connection could not be accepted, for example because the process is out of
/// descriptors, it tries again at intervals.
///
/// Use it on the thread that creates it, which must have an event loop.
class PROJECTOR_COMMON_EXPORT TcpListener final : public QTcpServer {
 public:
  /// Makes the connection that serves a connected socket.
  using Serve = std::function<ServedConnection*(std::unique_ptr<QTcpSocket>)>;

  struct Limits {
    int connections;    ///< Number of connections served at once.
    qint64 readBuffer;  ///< Largest number of buffered unread bytes of a connection, even while it
                        ///< waits.
  };

  /// Takes ownership of the connections that `serve` makes. They are deleted before `serve` is, so
  /// they may use the same objects.
  TcpListener(const Limits& limits, Serve serve);

 protected:
  void incomingConnection(qintptr descriptor) override;

 private:
  void ServeWaiting();
  bool HasRoom();

  const Limits limits_;
  const Serve serve_;
  QTimer serveLater_;
  QTcpSocket* waiting_ = nullptr;  ///< The next one, a child; null if none is known to wait.
  QObject served_;  ///< Parent of the connections made by `serve_`, and of nothing else.
};

}  // namespace AdvancedControl
