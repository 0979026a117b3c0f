#include "app/acctl/Output.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <poll.h>
#include <string>
#include <unistd.h>

#include "app/acctl/Message.h"

bool Print(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(STDOUT_FILENO, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) {
      if (errno != EPIPE) Complain(Message(Acctl::tr("cannot write: %1"), std::strerror(errno)));
      return false;
    }
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool HasReader() {
  pollfd output{.fd = STDOUT_FILENO, .events = 0, .revents = 0};
  return poll(&output, 1, 0) <= 0 || (output.revents & (POLLERR | POLLHUP | POLLNVAL)) == 0;
}

void Complain(std::string_view message) {
  std::fprintf(stderr, "acctl: %.*s\n", static_cast<int>(message.size()), message.data());
}
