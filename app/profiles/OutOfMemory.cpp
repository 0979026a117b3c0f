#include "app/profiles/OutOfMemory.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <new>
#include <sys/uio.h>
#include <unistd.h>

namespace {

const char* programName = "";
std::terminate_handler otherwise = nullptr;

iovec Bytes(const char* text) { return {const_cast<char*>(text), std::strlen(text)}; }

}  // namespace

void EndWhenOutOfMemory(const char* program) {
  programName = program;
  std::set_new_handler(EndOutOfMemory);
  // Thrown where nothing can catch it: on a thread, or in a `noexcept` function.
  otherwise = std::set_terminate([] {
    try {
      if (std::current_exception()) throw;
    } catch (const std::bad_alloc&) {
      EndOutOfMemory();
    } catch (...) {  // another error: handled as before
    }
    otherwise();
  });
}

// Does not allocate, and runs no exit handlers.
void EndOutOfMemory() {
  const std::array line{Bytes(programName), Bytes(": out of memory\n")};
  [[maybe_unused]] const ssize_t told = writev(STDERR_FILENO, line.data(), line.size());
  _exit(EXIT_FAILURE);
}
