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
  /// The snapshots are what the projectors should have: the fleet is told how many settings differ.
  bool areWanted = true;
};

using FleetWork =
    std::variant<SwitchPower, SetSetting, TakeSnapshots, ApplySnapshots, CompareSnapshots>;

enum class WorkOutcome : std::uint8_t {
  Waiting,  ///< For its turn.
  Working,
  Done,
  Pending,   ///< Accepted, but not in effect yet.
  Refused,   ///< At least a part of it, for the given reason.
  NoAnswer,  ///< What was sent may have been carried out.
  Stopped,   ///< The job was cancelled; what was sent before stays.
};

/// A setting for which a projector does not have the snapshot's value, or may not have it.
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

/// The result of a job for one projector.
struct WorkResult {
  WorkOutcome outcome = WorkOutcome::Waiting;
  std::string reason{};   ///< A few English words; empty without a problem.
  std::string setting{};  ///< Name of the setting that the reason is about, if any.
  // A job hands out copies of its results, so what is large is shared.
  std::shared_ptr<const Snapshot> snapshot{};  ///< The snapshot that was taken.
  std::shared_ptr<const Snapshot> undo{};      ///< What was replaced so far; null if nothing was.
  int unread = 0;  ///< Settings missing from `snapshot` because they could not be read.
  std::optional<int> differing{};  ///< Settings that differ from the snapshot.
  /// Of a comparison; null for other work.
  std::shared_ptr<const std::vector<SettingDifference>> differences{};
};

}  // namespace AdvancedControl
