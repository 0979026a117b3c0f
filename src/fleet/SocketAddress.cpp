#include "fleet/SocketAddress.h"

#include <array>
#include <memory>
#include <netdb.h>
#include <string_view>

namespace AdvancedControl {

std::optional<SocketAddress> SocketAddress::Of(const sockaddr& address) {
  SocketAddress made{};
  if (address.sa_family == AF_INET) {
    made.v4 = reinterpret_cast<const sockaddr_in&>(address);
  } else if (address.sa_family == AF_INET6) {  // unreachable: the system finds no others today
    made.v6 = reinterpret_cast<const sockaddr_in6&>(address);
  } else {
    return std::nullopt;
  }
  return made;
}

socklen_t SocketAddress::Size() const { return any.sa_family == AF_INET ? sizeof v4 : sizeof v6; }

void SocketAddress::SetPort(std::uint16_t port) {
  (any.sa_family == AF_INET ? v4.sin_port : v6.sin6_port) = htons(port);
}

std::optional<SocketAddress> ParseSocketAddress(const std::string& text, std::uint16_t port) {
  addrinfo hints{};
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_NUMERICHOST;
  addrinfo* found = nullptr;
  if (getaddrinfo(text.c_str(), nullptr, &hints, &found) != 0) return std::nullopt;
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> list(found, freeaddrinfo);
  auto address = SocketAddress::Of(*list->ai_addr);
  if (address) address->SetPort(port);  // unreachable: as above
  return address;
}

std::string TextOf(const SocketAddress& address) {
  constexpr std::string_view kMapped = "::ffff:";
  std::array<char, NI_MAXHOST> text{};
  // Leaves the text empty if it fails.
  getnameinfo(&address.any, address.Size(), text.data(), text.size(), nullptr, 0, NI_NUMERICHOST);
  const std::string_view whole = text.data();
  const bool isMapped = whole.starts_with(kMapped) && whole.find('.') != std::string_view::npos;
  return std::string(isMapped ? whole.substr(kMapped.size()) : whole);
}

}  // namespace AdvancedControl
