#include "app/acctl/Password.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include "app/acctl/Message.h"
#include "app/acctl/Report.h"
#include "fleet/WholeFile.h"

std::string GivenPassword(const Arguments& arguments, std::string& error) {
  if (!arguments.connecting.password.empty()) return arguments.connecting.password;
  if (!arguments.connecting.passwordFile.empty()) {
    constexpr qsizetype kMost = 4096;
    const FileBytes file = ReadToEnd(Wide(arguments.connecting.passwordFile), kMost);
    QByteArray line = file.bytes.split('\n').front();
    if (line.endsWith('\r')) line.chop(1);
    std::string password = line.toStdString();
    const QString reason = file.error.isEmpty() ? Acctl::tr("its first line is empty") : file.error;
    if (password.empty())
      error = "--password-file " + arguments.connecting.passwordFile + ": " + reason.toStdString();
    return password;
  }
  const char* const password = std::getenv("ACCTL_PASSWORD");
  return password != nullptr ? password : "";
}

std::optional<std::string> AskForPassword(const std::string& projector,
                                          const std::function<bool()>& isInterrupted) {
  termios shown{};
  if (isatty(STDERR_FILENO) != 1 || tcgetattr(STDIN_FILENO, &shown) != 0) return std::nullopt;
  termios hidden = shown;
  hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
  tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
  std::fputs(Message(Acctl::tr("Password of %1: "), projector).c_str(), stderr);
  constexpr int kPause = 100;  // milliseconds
  std::string typed;
  bool isOver = false;
  while (!isOver && !isInterrupted() && !typed.ends_with('\n')) {
    pollfd readable{.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
    if (poll(&readable, 1, kPause) <= 0) continue;
    std::array<char, 256> piece{};
    const ssize_t got = read(STDIN_FILENO, piece.data(), piece.size());
    isOver = got == 0 || (got < 0 && errno != EINTR && errno != EAGAIN);
    if (got > 0) typed.append(piece.data(), static_cast<std::size_t>(got));
  }
  tcsetattr(STDIN_FILENO, TCSAFLUSH, &shown);
  std::fputc('\n', stderr);
  if (!typed.ends_with('\n')) return std::nullopt;
  typed.pop_back();
  return typed;
}
