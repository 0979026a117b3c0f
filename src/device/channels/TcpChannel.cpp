#include "device/channels/TcpChannel.h"

#include <QIODevice>
#include <QTcpSocket>

#include "device/channels/ConnectSocket.h"

namespace AdvancedControl {

std::unique_ptr<QIODevice> TcpChannel::Open(const QDeadlineTimer& deadline,
                                            ConnectionState& problem) {
  constexpr qint64 kReadAhead = 65'536;
  return ConnectSocket(host_, port_, kReadAhead, deadline, problem);
}

bool TcpChannel::IsAlive(QIODevice& line) const {
  return static_cast<QTcpSocket&>(line).state() == QAbstractSocket::ConnectedState;
}

}  // namespace AdvancedControl
