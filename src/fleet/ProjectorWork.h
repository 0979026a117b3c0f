#pragma once

#include <functional>
#include <memory>
#include <string>

#include "Namespace.h"
#include "device/CPjtInterface.h"
#include "fleet/FleetTarget.h"
#include "fleet/FleetWork.h"
#include "settings/ModelSettings.h"
#include "snapshots/Restoration.h"
#include "snapshots/SettingTexts.h"

namespace AdvancedControl {

/// A job's work on one projector, over a channel of its own. After the first command without an
/// answer nothing more is sent.
class ProjectorWork {
 public:
  /// `observer` is called with each command and its reply; see `LearningChannel`.
  using Observer =
      std::function<void(const PjtCommand&, const PjtReply&, std::optional<PowerState>)>;

  /// `texts` and `goesOn`, which is asked before each command, must outlive it.
  ProjectorWork(const FleetTarget& target, const std::shared_ptr<ProjectorChannel>& channel,
                const SettingTexts& texts, const std::function<bool()>& goesOn, Observer observer);

  using KeepUndo = std::function<void(const std::shared_ptr<const Snapshot>& undo)>;
  /// `keepUndo` is called whenever the undo has grown, before the change is sent.
  WorkResult Do(const FleetWork& work, const KeepUndo& keepUndo);

 private:
  WorkResult Do(const SwitchPower& power);
  WorkResult Do(const SetSetting& set);
  WorkResult Do(const TakeSnapshots&);
  WorkResult Do(const ApplySnapshots& apply);
  WorkResult Do(const CompareSnapshots& compare);

  WorkResult Apply(const Snapshot& snapshot);
  WorkResult OutcomeOf(const Restoration& restoration) const;
  WorkResult Run(const ModelSetting& action, const std::string& entry);
  WorkResult SetPower(const ModelSetting& setting, int value);
  std::optional<WorkResult> Switch(bool on);
  /// The outcome of a change whose reply led from `before` to the present tally, where that says
  /// more than that it was accepted.
  std::optional<WorkResult> Trouble(const CPjtInterface::Tally& before) const;
  WorkResult Refused(std::string reason) const;
  WorkResult Unanswered() const;
  bool IsGone() const { return connection_.Sent().unanswered > 0; }

  const std::string id_;
  const SettingTexts& texts_;
  const std::function<bool()>& goesOn_;
  KeepUndo keepUndo_{};
  CPjtInterface connection_;
  ModelSettings settings_;
  const Progress progress_;
};

}  // namespace AdvancedControl
