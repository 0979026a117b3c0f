#pragma once

#include <functional>
#include <vector>

#include "app/acctl/Arguments.h"
#include "app/acctl/Report.h"
#include "fleet/JobLoop.h"
#include "fleet/VisitQueue.h"

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

/// What `RunParallel` does for each projector, by number.
struct ParallelWork {
  std::function<Report(int)> run;
  /// Gets the report, on the calling thread and in the order of the numbers, as soon as it can.
  std::function<void(int, Report)> handOver;
};

/// Runs the work for projectors at these addresses in the loop: at most `jobs` of them at the same
/// time, and one at each address. The loop has one thread, however many they are. Watches signals
/// from then on.
void RunParallel(JobLoop& loop, const std::vector<VisitQueue::Address>& addresses, int jobs,
                 Meter& meter, const ParallelWork& work);
