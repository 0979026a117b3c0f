#include "Mutant.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Choice {
  Choice() {
    if (const char* number = std::getenv("MUTANT")) active = std::atoi(number);
    const char* file = std::getenv("MUTANTS_REACHED");
    const int opened = file ? open(file, O_RDWR | O_CLOEXEC) : -1;
    struct stat status {};
    if (opened < 0 || fstat(opened, &status) != 0) return;
    size = static_cast<int>(status.st_size);
    void* bytes = mmap(nullptr, static_cast<std::size_t>(size), PROT_READ | PROT_WRITE, MAP_SHARED,
                       opened, 0);
    if (bytes != MAP_FAILED) reached = static_cast<char*>(bytes);
    close(opened);
  }

  int active = 0;
  int size = 0;
  char* reached = nullptr;  // shared with the processes that a test starts
};

}  // namespace

bool IsMutantActive(int number) noexcept {
  static const Choice choice;
  if (choice.reached && number < choice.size) choice.reached[number] = 1;
  return number == choice.active;
}
