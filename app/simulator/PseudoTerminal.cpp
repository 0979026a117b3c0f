#include "app/simulator/PseudoTerminal.h"

#include <array>
#include <fcntl.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <QSocketNotifier>

PseudoTerminal::PseudoTerminal() {
  termios raw{};
  cfmakeraw(&raw);
  cfsetspeed(&raw, B19200);
  raw.c_cflag |= CREAD | CLOCAL;
  std::array<char, 256> path{};
  if (openpty(&master_, &slave_, path.data(), &raw, nullptr) != 0) {
    setErrorString(qt_error_string());
    return;
  }
  path_ = path.data();
  for (const int end : {master_, slave_}) fcntl(end, F_SETFD, FD_CLOEXEC);
  fcntl(master_, F_SETFL, O_NONBLOCK);
  notifier_ = std::make_unique<QSocketNotifier>(master_, QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, &QIODevice::readyRead);
  setOpenMode(ReadWrite | Unbuffered);
}

PseudoTerminal::~PseudoTerminal() {
  notifier_.reset();
  for (const int end : {master_, slave_}) {
    if (end >= 0) ::close(end);
  }
}

qint64 PseudoTerminal::bytesAvailable() const {
  int waiting = 0;
  ioctl(master_, FIONREAD, &waiting);
  return waiting + QIODevice::bytesAvailable();
}

qint64 PseudoTerminal::readData(char* data, qint64 size) {
  const ssize_t got = ::read(master_, data, static_cast<std::size_t>(size));
  return got < 0 && errno != EAGAIN ? -1 : std::max<ssize_t>(got, 0);
}

// Bytes that do not fit are lost, as on a serial line that nobody reads.
qint64 PseudoTerminal::writeData(const char* data, qint64 size) {
  [[maybe_unused]] const ssize_t taken = ::write(master_, data, static_cast<std::size_t>(size));
  return size;
}
