#pragma once

#include <string>
#include <vector>

#include "app/acctl/Report.h"
#include "app/acctl/Uses.h"
#include "app/acctl/Work.h"
#include "snapshots/Restoration.h"

/// The result for one setting of a file, as it is reported.
struct ReportedSetting {
  const RestoredSetting* restored;
  Outcome outcome;
  const char* code = nullptr;  ///< Of the problem; null if there is none of its own.
  std::string reason{};        ///< Empty if the outcome itself is the reason.
  int exitCode = ExitCode::Done;
};

/// The results of `diff` and `apply` for one projector.
class RestoredOutcomes {
 public:
  /// All arguments must outlive this object.
  RestoredOutcomes(const Work& work, const Target& target, const Restoration& restoration);

  /// Puts all lists and problems into the report.
  void PutInto(Report& report) const;
  /// One line for each setting that differs, that differed before it was changed, or that may
  /// differ.
  std::string Differences() const;
  /// "12 changed, 28 already so, 1 refused"
  std::string Summary() const;
  int Count(Outcome outcome) const;

 private:
  ReportedSetting Judge(const RestoredSetting& restored) const;
  bool Sends() const;
  bool IsStopped(const RestoredSetting& restored) const;
  std::string NameOf(const SavedSetting& saved) const;
  QJsonObject Describe(const ReportedSetting& reported) const;

  const Work& work_;
  const Target target_;
  const Restoration& restoration_;
  std::vector<ReportedSetting> settings_;
};
