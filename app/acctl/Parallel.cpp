#include "app/acctl/Parallel.h"

#include <algorithm>
#include <condition_variable>
#include <cstdio>
#include <exception>
#include <mutex>
#include <new>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <thread>

#include "app/acctl/Message.h"
#include "app/acctl/Signals.h"
#include "app/profiles/OutOfMemory.h"
#include "fleet/RunOnEach.h"

void Meter::Draw(int done) {
  constexpr int kWidth = 30;
  if (!isShown_ || done == drawn_) return;
  drawn_ = done;
  std::string bar(static_cast<std::size_t>(kWidth * done / total_), '#');
  bar.resize(kWidth, '.');
  //: Behind a bar: how many projectors are done, and how many there are.
  const std::string text = Message(Acctl::tr("%1 of %2"), done, total_);
  std::fprintf(stderr, "\r%s %s", bar.c_str(), text.c_str());
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
    report.Add({ProblemCode::Internal, error.what()});
    return report;
  }
}

}  // namespace

int JobsOf(const Arguments& arguments) {
  constexpr int kReading = 512;
  constexpr int kChanging = 64;
  if (arguments.connecting.jobs > 0) return arguments.connecting.jobs;
  switch (arguments.command) {
    case Command::Set:
    case Command::Reset:
    case Command::Apply:
    case Command::Undo:
      return kChanging;
    default:
      return kReading;
  }
}

void AllowFilesFor(int jobs) {
  constexpr rlim_t kOfOneJob = 4;
  constexpr rlim_t kOthers = 64;
  const rlim_t needed = kOfOneJob * static_cast<rlim_t>(jobs) + kOthers;
  rlimit limit{};
  if (getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur >= needed) return;
  limit.rlim_cur = std::min(needed, limit.rlim_max);
  setrlimit(RLIMIT_NOFILE, &limit);
}

void RunParallel(JobLoop& loop, const std::vector<VisitQueue::Address>& addresses, int jobs,
                 Meter& meter, const ParallelWork& work) {
  WatchSignals();
  std::mutex mutex;
  std::condition_variable ready;
  std::vector<std::optional<Report>> reports(addresses.size());
  int done = 0;
  const std::jthread thread([&] {
    RunOnEach(loop, addresses, static_cast<std::size_t>(jobs), [&](std::size_t number) {
      Report report = Guarded(work.run, static_cast<int>(number));
      const std::lock_guard lock(mutex);
      reports[number] = std::move(report);
      ++done;
      ready.notify_one();
    });
  });

  std::unique_lock lock(mutex);
  for (std::size_t next = 0; next < addresses.size(); ++next) {
    std::optional<Report>& report = reports[next];
    while (!report) {
      meter.Draw(done);
      ready.wait(lock);
    }
    Report finished = std::move(*report);
    *report = {};  // so that a large list is not kept twice
    lock.unlock();
    meter.Clear();
    work.handOver(static_cast<int>(next), std::move(finished));
    lock.lock();
  }
}
