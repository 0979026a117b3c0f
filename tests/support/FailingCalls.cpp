// Preloaded into a program under test: lets calls fail that hardly ever do on a healthy machine.
//
//   FAIL_ALLOCATION=N  the N-th allocation after the program was loaded, once
//   FAIL_SYNC=FILE     fsync of a regular file, or with "folder" of a folder
//   FAIL_ACCEPT=N      the first N connections that are accepted, as if they had been given up

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

std::atomic<long> allocationsLeft{0};
std::atomic<long> acceptsLeft{0};

long Number(const char* name) {
  const char* const text = std::getenv(name);
  return text != nullptr ? std::strtol(text, nullptr, 10) : 0;
}

__attribute__((constructor)) void Begin() {
  acceptsLeft = Number("FAIL_ACCEPT");
  allocationsLeft = Number("FAIL_ALLOCATION");
}

bool FailsAllocation() {
  if (allocationsLeft <= 0 || --allocationsLeft != 0) return false;
  errno = ENOMEM;
  return true;
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) { return FailsAllocation() ? nullptr : __libc_malloc(size); }

void* calloc(std::size_t count, std::size_t size) {
  return FailsAllocation() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
  return FailsAllocation() ? nullptr : __libc_realloc(block, size);
}

int fsync(int file) {
  struct stat status {};
  const char* const what = std::getenv("FAIL_SYNC");
  if (what != nullptr && fstat(file, &status) == 0 &&
      S_ISDIR(status.st_mode) == (std::strcmp(what, "folder") == 0)) {
    errno = EIO;
    return -1;
  }
  return reinterpret_cast<int (*)(int)>(dlsym(RTLD_NEXT, "fsync"))(file);
}

int accept4(int listener, sockaddr* address, socklen_t* size, int flags) {
  using Accept = int (*)(int, sockaddr*, socklen_t*, int);
  const int taken =
      reinterpret_cast<Accept>(dlsym(RTLD_NEXT, "accept4"))(listener, address, size, flags);
  if (taken < 0 || acceptsLeft <= 0 || acceptsLeft-- <= 0) return taken;
  close(taken);
  errno = ECONNABORTED;
  return -1;
}
}
