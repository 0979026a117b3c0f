#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "simulator/FaultyLine.h"

class QHostAddress;
class QIODevice;

namespace AdvancedControl {

/// Serves one projector over the wire protocol (docs/wire.md): on a TCP port, and on open lines.
/// Use it on one thread, with an event loop. The projector's channel is called on that thread and
/// should answer at once.
class PROJECTOR_COMMON_EXPORT WireServer {
 public:
  /// Connections that the port serves at once; see `TcpListener` for further ones.
  static constexpr int kMaximumConnections = 8;

  /// `timeForHello` is the time after which the TCP connection of a peer that sends no hello is
  /// closed.
  explicit WireServer(std::shared_ptr<ProjectorChannel> projector,
                      std::chrono::milliseconds timeForHello = std::chrono::seconds(10));
  ~WireServer();
  WireServer(const WireServer&) = delete;
  WireServer& operator=(const WireServer&) = delete;

  /// Starts listening; `port` 0 chooses a free one. Returns the port, or 0 on failure; then
  /// `ErrorText` says why.
  std::uint16_t Listen(const QHostAddress& address, std::uint16_t port);
  std::string ErrorText() const;

  /// Takes ownership of an open line and serves it until it closes.
  void Serve(std::unique_ptr<QIODevice> line);

  void SetFault(const LineFault& fault);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace AdvancedControl
