#include "app/profiles/DescriptorLimit.h"

#include <sys/resource.h>

void RaiseDescriptorLimit() {
  rlimit limit{};
  if (getrlimit(RLIMIT_NOFILE, &limit) != 0) return;  // unreachable: only a sandbox forbids it
  limit.rlim_cur = limit.rlim_max;
  setrlimit(RLIMIT_NOFILE, &limit);
}
