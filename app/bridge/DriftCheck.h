#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <QString>
#include <QTimer>

#include "app/bridge/BridgeFleet.h"
#include "fleet/FleetJob.h"
#include "snapshots/SettingTexts.h"

/// Checks once a day how many settings of each projector differ from its snapshot, a few projectors
/// at a time, and reports it to the fleet. Tries again sooner where it found nothing out. Lives on
/// the main thread.
class DriftCheck {
 public:
  /// The snapshot that a profile names "good" is `folder`/good.json. `fleet` and `texts` must
  /// outlive it.
  DriftCheck(BridgeFleet& fleet, const SettingTexts& texts, QString folder);

  /// Starts; after each pause it checks the projectors that are due and answer.
  void Start(std::chrono::milliseconds pause = std::chrono::minutes(1));
  /// Ends a check that is under way. If it was started, starts anew: all projectors are due.
  void PutOff();

 private:
  struct Turn {
    std::chrono::steady_clock::time_point next{};
    bool soonerWhenOn = false;  ///< The last try, while it was off, found nothing out.
  };

  void Check();
  void TakeResults();
  std::shared_ptr<const Snapshot> Read(const std::string& name);

  BridgeFleet& fleet_;
  const SettingTexts& texts_;
  const QString folder_;
  QTimer timer_;
  std::map<std::string, Turn> turns_;  ///< By identity.
  std::set<std::string> unread_;       ///< Snapshots that could not be read.
  std::vector<std::string> checked_;   ///< The identities of the job's projectors.
  std::unique_ptr<FleetJob> job_;      ///< The one under way; ends first.
};
