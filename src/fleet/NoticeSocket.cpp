#include "fleet/NoticeSocket.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <unistd.h>
#include <utility>

#include "device/protocol/PjLinkLine.h"
#include "fleet/NameResolver.h"

namespace AdvancedControl {

namespace {

std::string TextOf(const SocketAddress& address) {
  std::array<char, INET6_ADDRSTRLEN> text{};
  const bool isV4 = address.any.sa_family == AF_INET;
  const void* const bytes = isV4 ? static_cast<const void*>(&address.v4.sin_addr)
                                 : static_cast<const void*>(&address.v6.sin6_addr);
  inet_ntop(address.any.sa_family, bytes, text.data(), text.size());
  return text.data();
}

}  // namespace

NoticeSocket::~NoticeSocket() { Close(); }

std::uint16_t NoticeSocket::Open(const std::string& address, std::uint16_t port) {
  Close();
  auto place = ParseSocketAddress(address, port);
  if (!place) return 0;
  const int family = place->any.sa_family;
  socket_ = socket(family, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  socklen_t size = family == AF_INET ? sizeof place->v4 : sizeof place->v6;
  if (socket_ < 0 || bind(socket_, &place->any, size) != 0 ||
      getsockname(socket_, &place->any, &size) != 0) {
    Close();
    return 0;
  }
  return ntohs(family == AF_INET ? place->v4.sin_port : place->v6.sin6_port);
}

std::optional<std::string> NoticeSocket::Next() const {
  std::array<char, 256> text{};
  SocketAddress sender{};
  while (true) {
    socklen_t size = sizeof sender;
    const auto length = recvfrom(socket_, text.data(), text.size(), 0, &sender.any, &size);
    if (length < 0 && errno != EINTR) return std::nullopt;
    if (length > 0 && PjLink::IsNotice({text.data(), static_cast<std::size_t>(length)})) {
      return TextOf(sender);
    }
  }
}

void NoticeSocket::Close() {
  if (socket_ >= 0) close(std::exchange(socket_, -1));
}

}  // namespace AdvancedControl
