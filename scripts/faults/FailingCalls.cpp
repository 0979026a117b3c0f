// Preloaded into a program under test. Makes calls fail that rarely fail on a healthy machine.
//
//   FAIL_ALLOCATION=N  the N-th allocation in main, once
//   FAIL_CALL=N        the N-th of the system calls below in main, once, as FAIL_HOW says: "error",
//                      "cut" (one byte is read or written; any other call is left alone) or
//                      "interrupt"
//   FAIL_COUNTS=PATH   writes to this file how many allocations and system calls main has made
//   FAIL_LATER=1       the two above count from the program's call of BeginFailing to EndFailing
//   FAIL_SYNC=WHAT     fsync of each "file" or "folder"; with "kill" the program dies in the first
//   FAIL_NEW_NAME=N    renaming that never replaces a file, with the error number N: EINVAL on a
//                      file system that does not know it
//   FAIL_ACCEPT=N      the first N connections that are accepted, as if their peers had left

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <string_view>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

std::atomic<bool> isInMain{false};
std::atomic<long> allocations{0}, failingAllocation{0};  // counted from 1
std::atomic<long> calls{0}, failingCall{0};
std::atomic<long> acceptsLeft{0};
std::string_view how;

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
  if (!isInMain || ++allocations != failingAllocation) return false;
  errno = ENOMEM;
  return true;
}

bool IsTheCall() { return isInMain && ++calls == failingCall; }

/// Calls the real function, or fails with `error`.
template <class Result, class... Parameters>
Result Call(const char* name, int error, Parameters... parameters) {
  if (IsTheCall() && how != "cut") {
    errno = how == "interrupt" ? EINTR : error;
    return Result{-1};
  }
  return Real<Result(Parameters...)>(name)(parameters...);
}

/// The same for what reads or writes `size` bytes.
template <class... Flags>
ssize_t Transfer(const char* name, int error, int file, auto* bytes, std::size_t size,
                 Flags... flags) {
  using Function = ssize_t(int, decltype(bytes), std::size_t, Flags...);
  const bool isTheCall = IsTheCall();
  if (isTheCall && how != "cut") {
    errno = how == "interrupt" ? EINTR : error;
    return -1;
  }
  return Real<Function>(name)(file, bytes, isTheCall ? std::min<std::size_t>(size, 1) : size,
                              flags...);
}

using Main = int(int, char**, char**);
Main* realMain = nullptr;

int CountedMain(int argc, char** argv, char** environment) {
  failingAllocation = Number("FAIL_ALLOCATION");
  failingCall = Number("FAIL_CALL");
  if (const char* const text = std::getenv("FAIL_HOW")) how = text;
  isInMain = std::getenv("FAIL_LATER") == nullptr;
  const int result = realMain(argc, argv, environment);
  isInMain = false;
  if (const char* const path = std::getenv("FAIL_COUNTS")) {
    if (std::FILE* const file = std::fopen(path, "w")) {
      std::fprintf(file, "%ld %ld\n", allocations.load(), calls.load());
      std::fclose(file);
    }
  }
  return result;
}

}  // namespace

extern "C" {

int __libc_start_main(Main* program, int argc, char** argv, void (*init)(), void (*fini)(),
                      void (*loader)(), void* stackEnd) {
  realMain = program;
  return Real<int(Main*, int, char**, void (*)(), void (*)(), void (*)(), void*)>(
      "__libc_start_main")(CountedMain, argc, argv, init, fini, loader, stackEnd);
}

void BeginFailing() { isInMain = true; }
void EndFailing() { isInMain = false; }

#ifndef SANITIZED  // then the program has its own
void* malloc(std::size_t size) { return FailsAllocation() ? nullptr : __libc_malloc(size); }

void* calloc(std::size_t count, std::size_t size) {
  return FailsAllocation() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
  return FailsAllocation() ? nullptr : __libc_realloc(block, size);
}
#endif

int open(const char* path, int flags, ...) {
  std::va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return Call<int>("open", EMFILE, path, flags, mode);
}

// Every file may be large.
int open64(const char* path, int flags, ...) __attribute__((alias("open")));

ssize_t read(int file, void* bytes, std::size_t size) {
  return Transfer("read", EIO, file, bytes, size);
}
ssize_t __read_chk(int file, void* bytes, std::size_t size, std::size_t) {
  return Transfer("read", EIO, file, bytes, size);
}
ssize_t write(int file, const void* bytes, std::size_t size) {
  return Transfer("write", ENOSPC, file, bytes, size);
}
ssize_t send(int file, const void* bytes, std::size_t size, int flags) {
  return Transfer("send", ECONNRESET, file, bytes, size, flags);
}
ssize_t recv(int file, void* bytes, std::size_t size, int flags) {
  return Transfer("recv", ECONNRESET, file, bytes, size, flags);
}

int connect(int file, const sockaddr* address, socklen_t size) {
  return Call<int>("connect", ENETUNREACH, file, address, size);
}
int poll(pollfd* files, nfds_t count, int timeOut) {
  return Call<int>("poll", ENOMEM, files, count, timeOut);
}
int ppoll(pollfd* files, nfds_t count, const timespec* timeOut, const sigset_t* signals) {
  return Call<int>("ppoll", ENOMEM, files, count, timeOut, signals);
}
int rename(const char* from, const char* to) noexcept { return Call<int>("rename", EIO, from, to); }
int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  if (const long error = Number("FAIL_NEW_NAME"); flags != 0 && error != 0) {
    errno = static_cast<int>(error);
    return -1;
  }
  return Call<int>("renameat2", EIO, fromFolder, from, toFolder, to, flags);
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
  return Call<int>("fsync", EIO, file);
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
