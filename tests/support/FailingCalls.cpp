// Preloaded into a program under test. Makes calls fail that rarely fail on a healthy machine.
//
//   FAIL_ALLOCATION=N  the N-th allocation after the program made its first thread, once
//   FAIL_SYNC=WHAT     fsync of each "file" or "folder"; with "kill" the program dies in the first
//   FAIL_ACCEPT=N      the first N connections that are accepted, as if their peers had left

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <pthread.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

std::atomic<long> allocationsLeft{0};  // 0 if none should fail
std::atomic<long> acceptsLeft{0};

long Number(const char* name) {
  const char* const text = std::getenv(name);
  return text != nullptr ? std::strtol(text, nullptr, 10) : 0;
}

__attribute__((constructor)) void Begin() { acceptsLeft = Number("FAIL_ACCEPT"); }

template <class Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
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

int pthread_create(pthread_t* thread, const pthread_attr_t* how, void* (*run)(void*), void* with) {
  static std::atomic<bool> isFirst{true};
  if (isFirst.exchange(false)) allocationsLeft = Number("FAIL_ALLOCATION");
  return Real<int(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*)>("pthread_create")(
      thread, how, run, with);
}

int fsync(int file) {
  struct stat status {};
  const char* const what = std::getenv("FAIL_SYNC");
  if (what != nullptr && std::strcmp(what, "kill") == 0) raise(SIGKILL);
  if (what != nullptr && fstat(file, &status) == 0 &&
      S_ISDIR(status.st_mode) == (std::strcmp(what, "folder") == 0)) {
    errno = EIO;
    return -1;
  }
  return Real<int(int)>("fsync")(file);
}

int accept4(int listener, sockaddr* address, socklen_t* size, int flags) {
  const int taken =
      Real<int(int, sockaddr*, socklen_t*, int)>("accept4")(listener, address, size, flags);
  if (taken < 0 || acceptsLeft <= 0 || acceptsLeft-- <= 0) return taken;
  close(taken);
  errno = ECONNABORTED;
  return -1;
}
}
