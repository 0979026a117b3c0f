#include "app/profiles/LoopbackSocket.h"

#include <cerrno>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace LoopbackSocket {

namespace {

constexpr int kWaiting = 4096;  // connections; the system may hold fewer

int CloseFailed(int socket) {
  const int error = errno;
  close(socket);
  errno = error;
  return -1;
}

void SetOption(int socket, int level, int option) {
  constexpr int kOn = 1;
  setsockopt(socket, level, option, &kOn, sizeof kOn);
}

}  // namespace

int Open(int type, std::uint16_t port) {
  const int made = socket(AF_INET, type | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (made < 0) return made;
  constexpr char kLoopback[] = "lo";
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_ANY);
  address.sin_port = htons(port);
  SetOption(made, SOL_SOCKET, SO_REUSEADDR);
  const bool isBound =
      // unreachable: a system without a loopback device runs no tests
      setsockopt(made, SOL_SOCKET, SO_BINDTODEVICE, kLoopback, sizeof kLoopback) == 0 &&
      bind(made, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  return isBound ? made : CloseFailed(made);
}

int Listen(std::uint16_t port) {
  const int made = Open(SOCK_STREAM, port);
  if (made < 0) return made;
  SetOption(made, IPPROTO_TCP, TCP_NODELAY);  // connections inherit it
  // unreachable: another program would have to listen at the port just now
  return listen(made, kWaiting) == 0 ? made : CloseFailed(made);
}

}  // namespace LoopbackSocket
