#pragma once

#include <set>
#include <string>

#include <QObject>
#include <QTimer>

#include "snapshots/SettingTexts.h"

class FleetWatch;
class ProfileDocument;
class QWidget;
class WorkRun;

/// Checks how many settings of the projectors differ from the presets that they should have, and
/// reports it to the fleet: for all projectors a minute after the start and then every hour, and
/// for some on request.
class DriftCheck : public QObject {
 public:
  /// All arguments must outlive it. Checks under way belong to `window`.
  DriftCheck(const ProfileDocument& document, FleetWatch& watch, const SettingTexts& texts,
             QWidget& window);

  /// Checks those of these projectors now that have such a preset and are not in standby.
  void Check(const std::set<std::string>& ids);
  void CheckAll();
  /// Checks the projectors that the work has changed.
  void CheckAfter(const WorkRun& run);

 private:
  const ProfileDocument& document_;
  FleetWatch& watch_;
  const SettingTexts& texts_;
  QWidget& window_;
  QTimer timer_;
};
