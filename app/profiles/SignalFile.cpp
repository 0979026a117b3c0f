#include "app/profiles/SignalFile.h"

#include <csignal>
#include <sys/signalfd.h>

int SignalFile(const std::vector<int>& signals) {
  sigset_t reported;
  sigemptyset(&reported);
  for (const int signal : signals) sigaddset(&reported, signal);
  pthread_sigmask(SIG_BLOCK, &reported, nullptr);
  return signalfd(-1, &reported, SFD_CLOEXEC | SFD_NONBLOCK);
}
