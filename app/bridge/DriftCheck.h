#pragma once

#include <chrono>
#include <memory>

#include <QString>
#include <QTimer>

#include "app/bridge/BridgeFleet.h"
#include "fleet/FleetJob.h"
#include "snapshots/SettingTexts.h"

/// Checks once a day how many settings of each projector differ from its snapshot, a few projectors
/// at a time, and reports it to the fleet. Lives on the main thread.
class DriftCheck {
 public:
  /// The snapshot that a profile names "good" is `folder`/good.json. `fleet` and `texts` must
  /// outlive it.
  DriftCheck(BridgeFleet& fleet, const SettingTexts& texts, QString folder);

  /// Starts; the first check is made after `first`.
  void Start(std::chrono::milliseconds first = std::chrono::minutes(1));
  /// Ends a check that is under way. If it was started, starts anew.
  void PutOff();

 private:
  void Check();

  BridgeFleet& fleet_;
  const SettingTexts& texts_;
  const QString folder_;
  std::chrono::milliseconds first_{};
  QTimer timer_;
  std::unique_ptr<FleetJob> job_;  ///< The last one; ends first.
};
