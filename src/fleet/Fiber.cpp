#include "fleet/Fiber.h"

#include <cstddef>
#include <cstdint>
#include <new>
#include <sys/mman.h>
#include <ucontext.h>
#include <unistd.h>

// The sanitizers have to know which stack is in use.
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define __SANITIZE_ADDRESS__
#endif
#if __has_feature(thread_sanitizer)
#define __SANITIZE_THREAD__
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
#include <dlfcn.h>
#include <sanitizer/asan_interface.h>
#include <sanitizer/common_interface_defs.h>
#endif
#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace AdvancedControl {

namespace {

/// Only what is used takes memory.
constexpr std::size_t kStackBytes = std::size_t{1} << 20;

constexpr unsigned kHalf = 32;

void Switch(ucontext_t& from, const ucontext_t& to) {
#ifdef __SANITIZE_ADDRESS__
  // The sanitizer has a function of its own here, which prints a warning. It is meant for code that
  // does not tell the sanitizer about its stacks.
  static const auto ofTheSystem = reinterpret_cast<decltype(&swapcontext)>(
      dlsym(dlopen("libc.so.6", RTLD_NOW | RTLD_NOLOAD), "swapcontext"));
  ofTheSystem(&from, &to);
#else
  swapcontext(&from, &to);
#endif
}

}  // namespace

/// Holds the memory of a stack, and switches between it and the thread's own stack.
class Fiber::Stack {
 public:
  explicit Stack(Fiber* fiber);
  ~Stack();
  Stack(const Stack&) = delete;
  Stack& operator=(const Stack&) = delete;

  void Enter();
  /// `isLast` if the fiber is never entered again.
  void Leave(bool isLast);
  /// First thing on the new stack.
  void Arrived();

 private:
  std::byte* memory_;
  std::size_t guard_;  ///< Size of the page below the stack, which nothing may touch.
  ucontext_t own_{};
  ucontext_t thread_{};
#ifdef __SANITIZE_ADDRESS__
  void* ownState_ = nullptr;
  const void* threadBottom_ = nullptr;
  std::size_t threadSize_ = 0;
#endif
#ifdef __SANITIZE_THREAD__
  void* const ownFiber_ = __tsan_create_fiber(0);
  void* threadFiber_ = nullptr;
#endif
};

Fiber::Stack::Stack(Fiber* fiber) : guard_(static_cast<std::size_t>(sysconf(_SC_PAGESIZE))) {
  void* const memory = mmap(nullptr, guard_ + kStackBytes, PROT_READ | PROT_WRITE,
                            MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE | MAP_STACK, -1, 0);
  if (memory == MAP_FAILED || mprotect(memory, guard_, PROT_NONE) != 0) {
    throw std::bad_alloc();
  }
  memory_ = static_cast<std::byte*>(memory);
  getcontext(&own_);
  own_.uc_stack.ss_sp = memory_ + guard_;
  own_.uc_stack.ss_size = kStackBytes;
  // The arguments are passed as integers.
  const auto address = reinterpret_cast<std::uint64_t>(fiber);
  makecontext(&own_, reinterpret_cast<void (*)()>(&Fiber::Enter), 2,
              static_cast<unsigned>(address >> kHalf), static_cast<unsigned>(address));
}

Fiber::Stack::~Stack() {
#ifdef __SANITIZE_THREAD__
  __tsan_destroy_fiber(ownFiber_);
#endif
#ifdef __SANITIZE_ADDRESS__
  __asan_unpoison_memory_region(memory_ + guard_, kStackBytes);
#endif
  munmap(memory_, guard_ + kStackBytes);
}

void Fiber::Stack::Enter() {
#ifdef __SANITIZE_ADDRESS__
  void* threadState = nullptr;
  __sanitizer_start_switch_fiber(&threadState, memory_ + guard_, kStackBytes);
#endif
#ifdef __SANITIZE_THREAD__
  threadFiber_ = __tsan_get_current_fiber();
  __tsan_switch_to_fiber(ownFiber_, 0);
#endif
  Switch(thread_, own_);
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_finish_switch_fiber(threadState, nullptr, nullptr);
#endif
}

void Fiber::Stack::Leave(bool isLast) {
  static_cast<void>(isLast);
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_start_switch_fiber(isLast ? nullptr : &ownState_, threadBottom_, threadSize_);
#endif
#ifdef __SANITIZE_THREAD__
  __tsan_switch_to_fiber(threadFiber_, 0);
#endif
  Switch(own_, thread_);
  Arrived();
}

void Fiber::Stack::Arrived() {
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_finish_switch_fiber(ownState_, &threadBottom_, &threadSize_);
#endif
}

Fiber::Fiber(std::function<void()> run)
    : run_(std::move(run)), stack_(std::make_unique<Stack>(this)) {}

Fiber::~Fiber() = default;

void Fiber::Resume() { stack_->Enter(); }

void Fiber::Suspend() { stack_->Leave(false); }

void Fiber::Enter(unsigned upper, unsigned lower) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): makecontext passes only integers
  auto* const fiber = reinterpret_cast<Fiber*>(std::uint64_t{upper} << kHalf | lower);
  fiber->stack_->Arrived();
  fiber->run_();
  fiber->isFinished_ = true;
  fiber->stack_->Leave(true);
}

}  // namespace AdvancedControl
