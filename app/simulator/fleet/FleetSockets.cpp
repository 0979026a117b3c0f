#include "app/simulator/fleet/FleetSockets.h"

#include <arpa/inet.h>
#include <array>
#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include "app/profiles/LoopbackSocket.h"

namespace FleetSockets {

namespace {

constexpr int kReceiveBuffer = 1 << 20;

sockaddr_in MakeAddress(std::uint32_t address, std::uint16_t port) {
  sockaddr_in made{};
  made.sin_family = AF_INET;
  made.sin_addr.s_addr = htonl(address);
  made.sin_port = htons(port);
  return made;
}

Endpoint EndpointOf(const sockaddr_in& address) {
  return {ntohl(address.sin_addr.s_addr), ntohs(address.sin_port)};
}

bool SetOption(int socket, int level, int option, int value) {
  return setsockopt(socket, level, option, &value, sizeof value) == 0;
}

}  // namespace

int Listen(std::uint16_t port) { return LoopbackSocket::Listen(port); }

int Accept(int listener) {
  return accept4(listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
}

int OpenDatagrams(std::uint16_t port) {
  const int made = LoopbackSocket::Open(SOCK_DGRAM, port);
  if (made < 0) return made;
  SetOption(made, IPPROTO_IP, IP_PKTINFO, 1);
  SetOption(made, SOL_SOCKET, SO_RCVBUF, kReceiveBuffer);
  return made;
}

Endpoint LocalEndpoint(int socket) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  if (getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) != 0) return {};
  return EndpointOf(address);
}

void Reset(int socket) {
  const linger atOnce{.l_onoff = 1, .l_linger = 0};
  setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
  close(socket);
}

std::optional<Datagram> Receive(int socket) {
  static std::array<char, 512> text;
  alignas(cmsghdr) std::array<char, 256> control{};
  sockaddr_in from{};
  iovec part{.iov_base = text.data(), .iov_len = text.size()};
  msghdr message{};
  message.msg_name = &from;
  message.msg_namelen = sizeof from;
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = control.data();
  message.msg_controllen = control.size();
  const ssize_t size = recvmsg(socket, &message, 0);
  if (size < 0) return std::nullopt;
  Datagram datagram{EndpointOf(from), 0, {text.data(), static_cast<std::size_t>(size)}};
  for (cmsghdr* header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
    if (header->cmsg_level != IPPROTO_IP || header->cmsg_type != IP_PKTINFO) continue;
    in_pktinfo info{};
    std::memcpy(&info, CMSG_DATA(header), sizeof info);
    datagram.to = ntohl(info.ipi_addr.s_addr);
  }
  return datagram;
}

bool Send(int socket, std::uint32_t from, const Endpoint& to, std::string_view text) {
  in_pktinfo info{};
  info.ipi_spec_dst.s_addr = htonl(from);
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof info)> control{};
  sockaddr_in address = MakeAddress(to.address, to.port);
  iovec part{.iov_base = const_cast<char*>(text.data()), .iov_len = text.size()};
  msghdr message{};
  message.msg_name = &address;
  message.msg_namelen = sizeof address;
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = control.data();
  message.msg_controllen = control.size();
  cmsghdr* const header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = IPPROTO_IP;
  header->cmsg_type = IP_PKTINFO;
  header->cmsg_len = CMSG_LEN(sizeof info);
  std::memcpy(CMSG_DATA(header), &info, sizeof info);
  return sendmsg(socket, &message, MSG_NOSIGNAL) >= 0;
}

}  // namespace FleetSockets
