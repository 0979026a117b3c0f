#pragma once

#include <csignal>
#include <sys/resource.h>

/// Limits what the process may use of a resource, such as RLIMIT_NOFILE, while this lives.
class Limited {
 public:
  Limited(__rlimit_resource resource, rlim_t most) : resource_(resource) {
    std::signal(SIGXFSZ, SIG_IGN);  // so that a file that would be too long is an error
    getrlimit(resource_, &before_);
    const rlimit limit{.rlim_cur = most, .rlim_max = before_.rlim_max};
    setrlimit(resource_, &limit);
  }
  ~Limited() { setrlimit(resource_, &before_); }
  Limited(const Limited&) = delete;
  Limited& operator=(const Limited&) = delete;

 private:
  const __rlimit_resource resource_;
  rlimit before_{};
};
