#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Namespace.h"
#include "snapshots/Snapshot.h"

namespace AdvancedControl {

// What a job may do to each of its projectors.

struct SwitchPower {
  bool on = false;
};

/// Sets one setting. `text` is what a person types: an entry, a number or a step such as "+2". The
/// key may also be that of an action, which is then done; `text` is the entry of its list, if any.
struct SetSetting {
  std::string key{};
  std::string text{};
};

struct TakeSnapshots {};

/// Snapshots by the projectors' identities.
using SnapshotsById = std::map<std::string, std::shared_ptr<const Snapshot>>;

/// Puts each projector's own snapshot back. The undo of a run is one of these, too.
struct ApplySnapshots {
  SnapshotsById snapshots{};
};

/// Finds out which settings differ from each projector's snapshot, and changes nothing.
struct CompareSnapshots {
  SnapshotsById snapshots{};
  /// The snapshots say how the projectors should be: the fleet learns how many settings differ.
  bool areWanted = true;
};

using FleetWork =
    std::variant<SwitchPower, SetSetting, TakeSnapshots, ApplySnapshots, CompareSnapshots>;

enum class WorkOutcome : std::uint8_t {
  Waiting,  ///< For its turn.
  Working,
  Done,
  Pending,   ///< Accepted, and not yet so.
  Refused,   ///< At least a part of it, for the given reason.
  NoAnswer,  ///< What was sent may have been carried out.
  Stopped,   ///< The job was cancelled; what was sent before stays.
};

/// A setting of a snapshot that is not known to be so on a projector.
struct SettingDifference {
  enum class Kind : std::uint8_t {
    Differs,
    DoesNotApply,  ///< The model or the projector does not have it, or does not take the value.
    NotRead,       ///< The projector does not report it now.
  };

  SavedSetting saved;
  Kind kind = Kind::NotRead;
  std::optional<int> here{};  ///< The present device value, if it is known.
};

/// What became of a job on one projector.
struct WorkResult {
  WorkOutcome outcome = WorkOutcome::Waiting;
  std::string reason{};                ///< A few English words; empty where all is well.
  std::string setting{};               ///< Name of the setting that the reason is about, if any.
  std::optional<Snapshot> snapshot{};  ///< That was taken.
  std::optional<Snapshot> undo{};      ///< What was replaced so far; nothing while that is none.
  int unread = 0;                      ///< Settings that are missing in `snapshot`: not readable.
  std::optional<int> differing{};      ///< Settings that differ from the snapshot.
  /// Of a comparison; shared, because a job hands out copies of its results. Null for other work.
  std::shared_ptr<const std::vector<SettingDifference>> differences{};
};

}  // namespace AdvancedControl
