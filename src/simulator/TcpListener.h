#pragma once

#include <QTcpServer>

#include "Namespace.h"
#include "ProjectorCommonExport.h"

namespace AdvancedControl {

/// A port that stays open to the next connection whatever became of the last one: after one that
/// could not be accepted, as when the process has no descriptor left, it tries again at intervals.
class PROJECTOR_COMMON_EXPORT TcpListener final : public QTcpServer {
 public:
  /// No connection holds more than `readBuffer` unread bytes, also while it waits to be served.
  explicit TcpListener(qint64 readBuffer);

 protected:
  void incomingConnection(qintptr descriptor) override;

 private:
  const qint64 readBuffer_;
};

}  // namespace AdvancedControl
