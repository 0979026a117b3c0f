#pragma once

#include <chrono>
#include <cstdint>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <thread>

#include "fleet/Fleet.h"

// What the benchmarks of the fleet measure.

using Clock = std::chrono::steady_clock;

inline double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The processor time of this process.
inline double CpuSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// A number of a process's status, such as "VmRSS:" in kB.
inline double StatusOf(const std::string& process, const std::string& field) {
  std::ifstream status("/proc/" + process + "/status");
  for (std::string name; status >> name;) {
    double value = 0;
    if (name == field && status >> value) return value;
  }
  return 0;
}

/// Waits until so many visits have ended.
inline void AwaitVisits(const Fleet& fleet, std::uint64_t count) {
  while (true) {
    const FleetTally tally = fleet.Tally();
    if (tally.answered + tally.unanswered >= count) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
}
