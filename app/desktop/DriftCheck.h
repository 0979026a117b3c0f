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

/// Finds out how many settings of projectors differ from the presets that they should be like, and
/// tells the fleet: of all a minute after the start and then every hour, and of some on request.
class DriftCheck : public QObject {
 public:
  /// All must outlive it. What runs belongs to `window`.
  DriftCheck(const ProfileDocument& document, FleetWatch& watch, const SettingTexts& texts,
             QWidget& window);

  /// Asks these projectors at once, as far as they have such a preset and are not in standby.
  void Check(const std::set<std::string>& ids);
  void CheckAll();
  /// Asks those that the work changed.
  void CheckAfter(const WorkRun& run);

 private:
  const ProfileDocument& document_;
  FleetWatch& watch_;
  const SettingTexts& texts_;
  QWidget& window_;
  QTimer timer_;
};
