#pragma once

#include <functional>
#include <vector>

#include "app/acctl/Commands.h"

/// What is under way; also the bar that a person at a terminal sees on standard error.
class Meter {
 public:
  /// `shown` draws the bar; `total` counts projectors.
  Meter(bool shown, int total) : shown_(shown), total_(total) {}

  void Draw(int done);
  void Clear();

 private:
  bool shown_;
  int total_;
  int drawn_ = -1;
};

/// Runs `run` for numbers 0 to `count` − 1 on at most `jobs` threads, and hands each report over as
/// soon as those of all smaller numbers have been, on the calling thread.
void RunParallel(int count, int jobs, Meter& meter, const std::function<Report(int)>& run,
                 const std::function<void(int, Report)>& handOver);
