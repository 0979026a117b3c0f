#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "Namespace.h"
#include "device/protocol/PjLinkConnection.h"

class QTcpSocket;

namespace AdvancedControl {

/// Performs the steps of a PJLink session with a socket, and reports to the session's connection
/// what happens. Blocks without an event loop. Use from one thread at a time.
class PjLinkSocket {
 public:
  /// `host` is a name or an address. `connection` must outlive the socket.
  PjLinkSocket(std::string host, int port, PjLinkConnection& connection);
  ~PjLinkSocket();
  PjLinkSocket(const PjLinkSocket&) = delete;
  PjLinkSocket& operator=(const PjLinkSocket&) = delete;

  bool HasValidAddress() const;
  /// "host:port".
  std::string Address() const;

  bool IsOpen() const { return socket_ != nullptr; }
  void Perform(const PjLinkStep& step);
  /// Reads what arrived without a request: it answers no later request, and may be the end of the
  /// connection. Does not block.
  void ReceiveUnsolicited();
  void Close();

 private:
  void Connect(const PjLinkStep& step);
  /// Passes received data on, for at most `time`.
  void Listen(std::chrono::milliseconds time);

  const std::string host_;
  const int port_;
  PjLinkConnection& connection_;
  std::unique_ptr<QTcpSocket> socket_;
};

}  // namespace AdvancedControl
