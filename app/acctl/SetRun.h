#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/acctl/Changes.h"
#include "app/acctl/ReplacedValues.h"
#include "app/acctl/Values.h"

/// Makes the changes of `set` on one projector, in their order, and reports each.
class SetRun {
 public:
  /// All must outlive the run. The report gets the results.
  SetRun(const Work& work, ProjectorAccess& projector, const std::vector<Change>& changes,
         Report& report);

  /// Reads the present values, which are reported beside the new ones and can be restored later.
  void ReadBefore();
  /// With --wait, what follows a change of the power state is sent when that is in effect.
  void Make();
  /// With --wait, waits until every change that was accepted is in effect.
  void WaitForEffect() { WaitForEffect(results_); }
  /// Only reports what `Make` would do.
  void Compare();
  /// Puts the results into the report.
  void Finish();

 private:
  struct Result {
    const Change* change;
    std::optional<int> source{};
    std::optional<int> before{};
    std::optional<int> aim{};
    std::optional<int> now{};
    std::optional<PowerState> power{};  ///< When `now` was read.
    const char* outcome = "notDone";
    std::optional<Problem> problem{};
  };

  void Make(Result& result);
  void MakeSteps(Result& result);
  void WaitForEffect(std::span<Result> results);
  void ReadAgain(Result& result);
  void ReadNow(Result& result);
  void Judge(Result& result, const CPjtInterface::Tally& before, bool accepted,
             const CPjtInterface::Tally& after);
  void AddUnknownBefore(const Result& result);
  bool IsInEffect(const Result& result) const;
  void Fail(Result& result, const char* outcome, const char* code, std::string text, int exitCode);
  /// The projector did not answer, and nothing was changed.
  void FailUnanswered(Result& result);
  std::string NowText(const Result& result) const;
  QJsonObject Describe(const Result& result) const;

  const Work& work_;
  ProjectorAccess& projector_;
  Report& report_;
  std::vector<Result> results_;
  ReplacedValues replaced_;
  bool isForOtherMode_ = false;  ///< What `SelectsMode` was sent.
  /// When the waiting ends; nothing until it begins.
  std::optional<std::chrono::steady_clock::time_point> end_{};
};
