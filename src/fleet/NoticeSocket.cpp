#include "fleet/NoticeSocket.h"

#include <array>
#include <string_view>
#include <unistd.h>
#include <utility>

#include "device/protocol/PjLinkLine.h"
#include "fleet/SocketAddress.h"

namespace AdvancedControl {

NoticeSocket::~NoticeSocket() { Close(); }

std::uint16_t NoticeSocket::Open(const std::string& address, std::uint16_t port) {
  Close();
  auto place = ParseSocketAddress(address, port);
  if (!place) return 0;
  const int family = place->any.sa_family;
  socket_ = socket(family, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  socklen_t size = place->Size();
  if (socket_ < 0 || bind(socket_, &place->any, size) != 0 ||
      getsockname(socket_, &place->any, &size) != 0) {  // unreachable: only without buffers
    Close();
    return 0;
  }
  return ntohs(family == AF_INET ? place->v4.sin_port : place->v6.sin6_port);
}

std::optional<FleetNetwork::Notice> NoticeSocket::Next() const {
  std::array<char, 256> text{};
  SocketAddress sender{};
  while (true) {
    socklen_t size = sizeof sender;
    const auto length = recvfrom(socket_, text.data(), text.size(), 0, &sender.any, &size);
    if (length < 0) return std::nullopt;
    const std::string_view datagram(text.data(), static_cast<std::size_t>(length));
    if (!PjLink::IsNotice(datagram)) continue;
    const auto line = PjLink::Parse(datagram.substr(0, datagram.find_first_of("\r\n")));
    return FleetNetwork::Notice{TextOf(sender), line->command, line->parameter};
  }
}

void NoticeSocket::Close() {
  if (socket_ >= 0) close(std::exchange(socket_, -1));
}

}  // namespace AdvancedControl
