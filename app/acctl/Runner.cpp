#include "app/acctl/Runner.h"

#include <algorithm>
#include <condition_variable>
#include <cstdio>
#include <exception>
#include <mutex>
#include <new>
#include <optional>
#include <string>
#include <thread>

#include "app/profiles/OutOfMemory.h"

void Meter::Draw(int done) {
  constexpr int kWidth = 30;
  if (!shown_ || done == drawn_) return;
  drawn_ = done;
  std::string bar(static_cast<std::size_t>(kWidth * done / total_), '#');
  bar.resize(kWidth, '.');
  std::fprintf(stderr, "\r%s %d of %d", bar.c_str(), done, total_);
}

void Meter::Clear() {
  if (drawn_ >= 0) std::fputs("\r\033[K", stderr);
  drawn_ = -1;
}

namespace {

Report Guarded(const std::function<Report(int)>& run, int number) {
  try {
    return run(number);
  } catch (const std::bad_alloc&) {
    EndOutOfMemory();
  } catch (const std::exception& error) {
    Report report;
    report.Complain(error.what(), ExitCode::Refused);
    return report;
  }
}

}  // namespace

void RunParallel(int count, int jobs, Meter& meter, const std::function<Report(int)>& run,
                 const std::function<void(int, Report)>& handOver) {
  std::mutex mutex;
  std::condition_variable ready;
  std::vector<std::optional<Report>> reports(static_cast<std::size_t>(count));
  int taken = 0;
  int done = 0;
  const auto work = [&] {
    std::unique_lock lock(mutex);
    while (taken < count) {
      const int number = taken++;
      lock.unlock();
      Report report = Guarded(run, number);
      lock.lock();
      reports[static_cast<std::size_t>(number)] = std::move(report);
      ++done;
      ready.notify_one();
    }
  };
  const int threadCount = std::min(jobs, count);
  std::vector<std::jthread> threads;
  threads.reserve(static_cast<std::size_t>(threadCount));
  for (int i = 0; i < threadCount; ++i) threads.emplace_back(work);

  std::unique_lock lock(mutex);
  for (int next = 0; next < count; ++next) {
    std::optional<Report>& report = reports[static_cast<std::size_t>(next)];
    while (!report) {
      meter.Draw(done);
      ready.wait(lock);
    }
    Report finished = std::move(*report);
    *report = {};  // a large list is not kept twice
    lock.unlock();
    meter.Clear();
    handOver(next, std::move(finished));
    lock.lock();
  }
}
