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

/// A port that always takes the next connection. If as many are open as it serves at once, the one
/// that has been idle longest is closed for the new one; while none is idle, the new one waits. If
/// one could not be accepted, as when the process has no descriptor left, it tries again at
/// intervals.
///
/// Belongs to the thread that makes it, which must have an event loop.
class PROJECTOR_COMMON_EXPORT TcpListener final : public QTcpServer {
 public:
  /// Serves a connected socket.
  using Serve = std::function<ServedConnection*(std::unique_ptr<QTcpSocket>)>;

  struct Limits {
    int connections;    ///< Served at once.
    qint64 readBuffer;  ///< Unread bytes of a connection, also while it waits to be served.
  };

  /// Takes over what `serve` makes, which may go on using what `serve` does as long as this lives.
  TcpListener(const Limits& limits, Serve serve);

  /// Ends listening and all connections.
  void CloseAll();

 protected:
  void incomingConnection(qintptr descriptor) override;

 private:
  void ServeWaiting();
  bool HasRoom();

  const Limits limits_;
  const Serve serve_;
  QTimer serveLater_;
  QObject served_;  ///< Parent of what `serve_` made, and of nothing else.
};

}  // namespace AdvancedControl
