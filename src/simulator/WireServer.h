#pragma once

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

/// Serves one projector over our wire: on a TCP port, and on lines that are handed over. Lives on a
/// thread with an event loop; the projector should answer at once.
class PROJECTOR_COMMON_EXPORT WireServer {
 public:
  /// Of the port, at once; see `TcpListener` for further ones.
  static constexpr int kMaximumConnections = 8;

  explicit WireServer(std::shared_ptr<ProjectorChannel> projector);
  ~WireServer();
  WireServer(const WireServer&) = delete;
  WireServer& operator=(const WireServer&) = delete;

  /// Listens; `port` 0 takes a free one. The port, or 0 when it cannot be had; `ErrorText` then
  /// says why.
  std::uint16_t Listen(const QHostAddress& address, std::uint16_t port);
  std::string ErrorText() const;

  /// Serves an open line until it closes. Takes it over.
  void Serve(std::unique_ptr<QIODevice> line);

  void SetFault(const LineFault& fault);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace AdvancedControl
