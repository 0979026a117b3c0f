#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/acctl/Conditions.h"
#include "app/acctl/OpenProjectors.h"
#include "app/acctl/Preflight.h"
#include "app/acctl/Printer.h"

/// Opens a projector without waiting for other runs of the program. While other work of this run
/// uses its address, it waits in the loop; null if `goesOn` returns false meanwhile, which is
/// called again after each `JobLoop::WakeAll`.
std::unique_ptr<OpenProjector> OpenWithoutLock(const Work& work, const FleetProfile& profile,
                                               const std::function<bool()>& goesOn);

/// Runs a command on its projectors: checks the words first, then works on several at once, and
/// prints the reports in the order of the projectors.
class ProjectorRuns {
 public:
  ProjectorRuns(const Work& work, Projectors projectors, ModelCache& models);

  /// Reports an error that is not about one of the projectors.
  void Add(const Problem& problem);
  /// Leaves out projectors that do not meet the conditions. Those that do not answer are reported.
  /// Returns whether all are left.
  bool Filter(const std::vector<Condition>& conditions);
  void Run();
  /// The exit code so far.
  int Code() const { return code_; }
  /// Prints what is left, and returns the final exit code.
  int Finish();

 private:
  using Action = std::function<Report(const Work&, ProjectorAccess&)>;
  /// An action, and whether to keep the projector open for the next one.
  struct Step {
    Action action;
    bool keepsOpen = false;
    bool mayBeSilent = false;  ///< It works without a projector's answer, and waits for no run.
  };
  /// The result of one attempt to reach a projector.
  struct Attempt {
    Report report;
    bool lacksPassword = false;
    bool mayRepeat = true;  ///< Nothing can have been changed.
  };

  Report Act(int number, const Step& step);
  Attempt Try(int number, const Step& step, const std::string& password);
  Attempt TryWithPassword(int number, const Step& step);
  std::vector<int> All() const;
  /// Works on the projectors with these numbers at the same time. `work` gets positions in
  /// `numbers`.
  void RunOn(const std::vector<int>& numbers, const ParallelWork& work);
  Report RunOne(int number, const std::vector<std::optional<Report>>& checked);
  void RunOnAll();
  /// The report of a projector that is not begun because of --fail-fast or because the run was
  /// interrupted; nothing if it may be begun.
  std::optional<Report> NotBegun() const;
  const FleetProfile& Profile(int number) const {
    return *projectors_[static_cast<std::size_t>(number)];
  }
  int Count() const { return static_cast<int>(projectors_.size()); }

  const Work& work_;
  Projectors projectors_;
  ModelCache& models_;
  OpenProjectors open_;
  Meter meter_;
  Printer printer_;
  std::string typedPassword_;
  int code_ = ExitCode::Done;
  std::atomic<bool> hasFailed_ = false;
};
