#include "fleet/SerialLine.h"

#include <asm/termbits.h>  // <termios.h> has no speeds but the usual ones
#include <cerrno>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace AdvancedControl {

namespace {

bool IsTaken(int file) {
  int isTaken = 0;
  return ioctl(file, TIOCGEXCL, &isTaken) == 0 && isTaken != 0;
}

bool SetUp(int file, std::int32_t baud) {
  termios2 settings{};
  if (ioctl(file, TCGETS2, &settings) != 0) return false;
  settings.c_iflag = settings.c_oflag = settings.c_lflag = 0;
  settings.c_cflag = CS8 | CREAD | CLOCAL | BOTHER;
  settings.c_ispeed = settings.c_ospeed = static_cast<speed_t>(baud);
  settings.c_cc[VMIN] = 1;
  settings.c_cc[VTIME] = 0;
  return ioctl(file, TCSETS2, &settings) == 0 && ioctl(file, TCFLSH, TCIOFLUSH) == 0;
}

}  // namespace

int SerialLine::Open(const std::string& device, std::int32_t baud, Problem& problem) {
  const int file = open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  // The superuser can open a port that another program has.
  const bool isTaken = file < 0 ? errno == EBUSY : IsTaken(file);
  if (file >= 0 && !isTaken && ioctl(file, TIOCEXCL) == 0) {
    if (SetUp(file, baud)) return file;
    ioctl(file, TIOCNXCL);
  }
  problem = isTaken ? Problem::InUse : Problem::NotThere;
  if (file >= 0) close(file);
  return -1;
}

void SerialLine::Close(int file) {
  ioctl(file, TCFLSH, TCIOFLUSH);  // otherwise closing waits until everything is sent
  ioctl(file, TIOCNXCL);
  close(file);
}

}  // namespace AdvancedControl
