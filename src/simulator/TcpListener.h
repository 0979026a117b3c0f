#pragma once

#include <QTcpServer>

#include "ProjectorCommonExport.h"

/// A TCP server that keeps accepting connections after a failure: if a connection could not be
/// accepted, for example because the process is out of descriptors, it tries again at intervals.
class PROJECTOR_COMMON_EXPORT TcpListener final : public QTcpServer {
 public:
  /// Each connection buffers at most `readBuffer` unread bytes, even while it waits to be served.
  explicit TcpListener(qint64 readBuffer);

 protected:
  void incomingConnection(qintptr descriptor) override;

 private:
  const qint64 readBuffer_;
};
