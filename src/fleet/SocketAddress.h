#pragma once

#include <cstdint>
#include <netinet/in.h>
#include <optional>
#include <string>

#include "Namespace.h"

namespace AdvancedControl {

/// An address with a port, as sockets take it.
union SocketAddress {
  sockaddr any;
  sockaddr_in v4;
  sockaddr_in6 v6;

  /// IPv4 or IPv6; nothing for other families.
  static std::optional<SocketAddress> Of(const sockaddr& address);
  socklen_t Size() const;
  void SetPort(std::uint16_t port);
};

/// The address that a text such as "192.0.2.1" or "fe80::1%eth0" is; nothing for a name.
std::optional<SocketAddress> ParseSocketAddress(const std::string& text, std::uint16_t port);

/// The text of an address without its port, the same for each way to write the address. An IPv4
/// address in IPv6 form is written as IPv4.
std::string TextOf(const SocketAddress& address);

}  // namespace AdvancedControl
