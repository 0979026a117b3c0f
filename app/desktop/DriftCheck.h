#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>

#include <QObject>
#include <QTimer>

#include "snapshots/Snapshot.h"

class FleetWatch;
class ProfileDocument;
class QWidget;
class WorkActions;
class WorkRun;
struct WorkLine;

/// Checks how many settings of the projectors differ from the presets that they should have, and
/// reports it to the fleet: for all projectors a minute after the start and then every hour, and
/// for some on request and after work on them.
class DriftCheck : public QObject {
  Q_OBJECT

 public:
  /// Checks projectors when `work` has changed them. All arguments must outlive it. Checks under
  /// way belong to `window`.
  DriftCheck(const ProfileDocument& document, FleetWatch& watch, const WorkActions& work,
             QWidget& window);

  /// Takes over which preset each projector should be like. What is known of the settings of those
  /// that have another one now is forgotten, and they are checked.
  void TakeProfiles();
  /// Checks those of these projectors now that have such a preset and are not in standby.
  void Check(const std::set<std::string>& ids);
  void CheckAll();
  /// Checks those that should be like this preset, which has changed.
  void CheckPreset(const std::string& name);
  /// The values that the settings of a projector's preset had at its last check; empty if there was
  /// none.
  Snapshot LastSeen(const std::string& id) const;

 Q_SIGNALS:
  /// The settings of a projector were compared with its preset.
  void Checked(const std::string& id);

 private:
  struct Wanted {
    std::string preset;
    std::shared_ptr<const Snapshot> compared{};  ///< By the last check; null if the preset changed.
  };

  void CheckAfter(const WorkRun& run);
  /// Takes over the result for a projector, unless it has another preset by now or is checked anew.
  void Keep(const WorkRun& run, const WorkLine& line);

  const ProfileDocument& document_;
  FleetWatch& watch_;
  const WorkActions& work_;
  QWidget& window_;
  QTimer timer_{this};
  std::map<std::string, Wanted> wanted_;  // by identity, of those that have a preset
  std::map<std::string, Snapshot> seen_;
};
