#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Namespace.h"
#include "fleet/FleetNetwork.h"

namespace AdvancedControl {

/// Receives the status notices of PJLink, which projectors send over UDP to an address in their
/// settings.
class NoticeSocket {
 public:
  NoticeSocket() = default;
  ~NoticeSocket();
  NoticeSocket(const NoticeSocket&) = delete;
  NoticeSocket& operator=(const NoticeSocket&) = delete;

  /// Opens the socket, and closes an earlier one. `address` is numeric; port 0 chooses a free port.
  /// Returns the port, or 0 if it cannot be opened.
  std::uint16_t Open(const std::string& address, std::uint16_t port);
  /// Becomes readable with each notice; −1 when it is not open.
  int File() const { return socket_; }
  /// Nothing when there is none left.
  std::optional<FleetNetwork::Notice> Next() const;

 private:
  void Close();

  int socket_ = -1;
};

}  // namespace AdvancedControl
