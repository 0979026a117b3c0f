#pragma once

#include <functional>
#include <vector>

#include "app/acctl/Arguments.h"
#include "app/acctl/Report.h"

/// Shows a person at a terminal how many projectors are done, as a bar on standard error.
class Meter {
 public:
  /// Without `isShown`, nothing is drawn. `total` counts projectors.
  Meter(bool isShown, int total) : isShown_(isShown), total_(total) {}

  void Draw(int done);
  void Clear();

 private:
  bool isShown_;
  int total_;
  int drawn_ = -1;
};

/// How many projectors a command works on at once. Reading needs little more than a connection for
/// each projector, so hundreds can be waited for at the same time.
int JobsOf(const Arguments& arguments);

/// Raises the process's limit of open files to what this number of jobs needs, if the system allows
/// it.
void AllowFilesFor(int jobs);

/// Calls `run` for the numbers 0 to `count` − 1 on at most `jobs` threads. Passes each report to
/// `handOver`, on the calling thread and in the order of the numbers, as soon as it can.
void RunParallel(int count, int jobs, Meter& meter, const std::function<Report(int)>& run,
                 const std::function<void(int, Report)>& handOver);
