#pragma once

#include <optional>
#include <vector>

#include "app/acctl/Report.h"
#include "app/acctl/Work.h"
#include "app/profiles/ProjectorAccess.h"

/// Records in the undo file what a run replaces on one projector, each value before the change is
/// sent. Nothing is recorded for a projector that this program simulates itself.
class ReplacedValues {
 public:
  /// Both must outlive this object.
  ReplacedValues(const Work& work, const ProjectorAccess& projector)
      : work_(work), projector_(projector) {}

  /// Records that a setting had the value `before`, for the input source `source` if it has one.
  /// `aim` is the value that replaces it; nothing if only the projector knows that.
  void Keep(const ModelSetting& setting, std::optional<int> before, std::optional<int> aim,
            std::optional<int> source);
  /// Records that the projector has taken the value that was kept last. If it is a choice, what is
  /// kept later belongs to it, and is restored for it.
  void Confirm();
  /// Reports that something could not be recorded, if so.
  void ReportFailure(Report& report) const;

 private:
  const Work& work_;
  const ProjectorAccess& projector_;
  std::vector<SavedSetting> modes_;     ///< Choices that the projector has taken, in order.
  std::optional<SavedSetting> choice_;  ///< The last one that was kept, until it is taken.
  std::vector<SavedSetting> replaced_;  ///< What was there before, the last one first.
  bool isKept_ = true;
};

/// Records what a run replaces on a projector. Returns whether that is on the disk, or need not be
/// because the change does not outlast the run.
bool KeepUndo(const Work& work, const std::string& projector, const Snapshot& undo);

/// Records that a run changes something on a projector that cannot be restored.
void KeepRun(const Work& work, const std::string& projector);
