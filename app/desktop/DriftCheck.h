#pragma once

#include <map>
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
  void CheckAfter(const WorkRun& run);
  void Keep(const WorkRun& run);

  const ProfileDocument& document_;
  FleetWatch& watch_;
  const WorkActions& work_;
  QWidget& window_;
  QTimer timer_{this};
  std::map<std::string, std::string> presets_;  // by identity, of those that have one
  std::map<std::string, Snapshot> seen_;
};
