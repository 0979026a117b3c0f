// The cost of a program that is started to read one value, compared with the bare start of a Qt
// Core program.

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

namespace {

/// Runs a program to its end and discards its output; false if it fails.
bool RunProcess(const char* const* arguments) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error = posix_spawn(&child, arguments[0], &actions, nullptr,
                                const_cast<char* const*>(arguments), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  return error == 0 && waitpid(child, &status, 0) == child && status == 0;
}

void Measure(benchmark::State& state, const char* const* arguments) {
  for ([[maybe_unused]] auto round : state) {
    if (!RunProcess(arguments)) return state.SkipWithError("the program failed");
  }
}

void StartQtCore(benchmark::State& state) {
  static constexpr std::array<const char*, 2> kArguments{BENCH_BARE_PROGRAM, nullptr};
  Measure(state, kArguments.data());
}

void StartAndGet(benchmark::State& state) {
  static constexpr std::array<const char*, 5> kArguments{BENCH_ACCTL, "get", "Projector 5-30",
                                                         "picture.brightness", nullptr};
  Measure(state, kArguments.data());
}

BENCHMARK(StartQtCore)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(StartAndGet)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
