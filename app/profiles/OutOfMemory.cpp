#include "app/profiles/OutOfMemory.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <sys/uio.h>
#include <unistd.h>

#include <unicode/uclean.h>

namespace {

const char* programName = "";
std::terminate_handler otherwise = nullptr;

struct sigaction otherFaults {};

iovec Bytes(const char* text) { return {const_cast<char*>(text), std::strlen(text)}; }

// Qt uses some memory without checking whether it was allocated.
void OnFault(int signal, siginfo_t* fault, void*) {
  constexpr std::uintptr_t kNearNull = 65536;
  const auto address = reinterpret_cast<std::uintptr_t>(fault->si_addr);
  // unreachable: the process ends here, and can report nothing
  const bool isNearNull = fault->si_code == SEGV_MAPERR && address < kNearNull;
  // unreachable: as above
  if (isNearNull && errno == ENOMEM) EndOutOfMemory();
  sigaction(signal, &otherFaults, nullptr);  // the earlier handler gets the fault again
}

// The locale library would take a failed allocation for an unknown language.
void* AllocateOrEnd(const void*, std::size_t size) {
  void* const memory = std::malloc(size);
  // unreachable: the process ends where this is so, and can report nothing
  if (memory == nullptr && size > 0) EndOutOfMemory();
  return memory;
}

void* ReallocateOrEnd(const void*, void* memory, std::size_t size) {
  void* const moved = std::realloc(memory, size);
  if (moved == nullptr && size > 0) EndOutOfMemory();  // unreachable: as above
  return moved;
}

}  // namespace

void EndWhenOutOfMemory(const char* program) {
  programName = program;
  std::set_new_handler(EndOutOfMemory);
  struct sigaction action {};
  action.sa_sigaction = OnFault;
  action.sa_flags = SA_SIGINFO;
  sigaction(SIGSEGV, &action, &otherFaults);
  UErrorCode error = U_ZERO_ERROR;
  u_setMemoryFunctions(
      nullptr, AllocateOrEnd, ReallocateOrEnd, [](const void*, void* memory) { std::free(memory); },
      &error);
  // Thrown where nothing can catch it: on a thread, or in a `noexcept` function.
  otherwise = std::set_terminate([] {
    try {
      if (std::current_exception()) throw;  // unreachable: the process ends, and can report nothing
    } catch (const std::bad_alloc&) {
      EndOutOfMemory();
    } catch (...) {  // another error: handled as before
    }
    otherwise();
  });
}

void EndConsoleProgramWhenOutOfMemory(const char* program) {
  EndWhenOutOfMemory(program);
  setenv("QT_NO_GLIB", "1", 1);
}

// Does not allocate, and runs no exit handlers.
void EndOutOfMemory() {
  const std::array line{Bytes(programName), Bytes(": out of memory\n")};
  [[maybe_unused]] const ssize_t told = writev(STDERR_FILENO, line.data(), line.size());
  _exit(EXIT_FAILURE);
}
