#include "fleet/SocketConnection.h"

#include <cerrno>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace AdvancedControl {

void SocketConnection::Begin(std::string name, std::uint16_t port) {
  Close();
  ++attempt_;
  name_ = std::move(name);
  port_ = port;
  tried_ = 0;
}

void SocketConnection::BeginNext() {
  Close();
  ++attempt_;
  ++tried_;
  ++addressNumber_;
}

bool SocketConnection::Connect(const SocketAddress& address) {
  stage_ = Stage::Connecting;
  file_ = socket(address.any.sa_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (file_ < 0) return false;
  const int on = 1;
  setsockopt(file_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  return connect(file_, &address.any, address.Size()) == 0 || errno == EINPROGRESS;
}

SerialLine::Problem SocketConnection::OpenLine(const std::string& device, std::int32_t baud) {
  auto problem = SerialLine::Problem::None;
  stage_ = Stage::Connecting;
  file_ = SerialLine::Open(device, baud, problem);
  isLine_ = true;
  return problem;
}

bool SocketConnection::Send(std::string_view bytes) const {
  const auto sent = isLine_ ? write(file_, bytes.data(), bytes.size())
                            : send(file_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
  return sent == static_cast<ssize_t>(bytes.size());
}

ssize_t SocketConnection::Receive(std::span<char> buffer) const {
  return read(file_, buffer.data(), buffer.size());
}

void SocketConnection::Close() {
  stage_ = Stage::None;
  const int file = std::exchange(file_, -1);
  const bool isLine = std::exchange(isLine_, false);
  if (file < 0) return;
  if (isLine) {
    SerialLine::Close(file);
  } else {
    close(file);
  }
}

}  // namespace AdvancedControl
