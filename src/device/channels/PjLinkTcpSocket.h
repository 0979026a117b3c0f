#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "Namespace.h"
#include "device/channels/PjLinkSocket.h"
#include "device/protocol/PjLinkConnection.h"

class QTcpSocket;

namespace AdvancedControl {

/// Blocks without an event loop.
class PjLinkTcpSocket final : public PjLinkSocket {
 public:
  /// `host` is a name or an address. `connection` must outlive the socket.
  PjLinkTcpSocket(std::string host, std::uint16_t port, PjLinkConnection& connection);
  ~PjLinkTcpSocket() override;

  bool IsOpen() const override { return socket_ != nullptr; }
  void Perform(const SessionStep& step) override;
  void ReceiveUnsolicited() override;
  void Close() override;

 private:
  void Connect(const SessionStep& step);
  /// Passes received data on, for at most `time`.
  void Listen(std::chrono::milliseconds time);

  const std::string host_;
  const std::uint16_t port_;
  PjLinkConnection& connection_;
  std::unique_ptr<QTcpSocket> socket_;
};

}  // namespace AdvancedControl
