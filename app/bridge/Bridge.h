#pragma once

#include <memory>
#include <vector>

#include <QTimer>

#include "app/bridge/BridgeFleet.h"
#include "app/bridge/BrokerLink.h"
#include "app/bridge/CommandDesk.h"
#include "app/bridge/CommandRunner.h"
#include "app/bridge/Discovery.h"
#include "app/bridge/DriftCheck.h"
#include "app/bridge/MetricsService.h"
#include "app/bridge/ModelBook.h"
#include "app/bridge/Options.h"
#include "app/bridge/OtherShares.h"
#include "app/bridge/ShareProfiles.h"

/// The whole bridge: passes the fleet's states to the metrics and the broker, and the broker's
/// commands to the fleet. Lives on the main thread.
class Bridge {
 public:
  /// `texts` must outlive it.
  Bridge(const Options& options, std::vector<FleetProfile> profiles, const SettingTexts& texts);

  /// Starts, and returns one line with the error; empty on success.
  QString Start();
  /// Switches commands on or off; called for a signal.
  void SwitchCommands(bool on);

 private:
  void StartBroker();
  BrokerMessage MessageOf(Publisher::Kind kind, std::size_t projector);
  void Take(const BrokerMessage& message);
  void FinishCommand(std::size_t projector, const Command& command, const WorkResult& result);
  BridgeCounts Counts() const;
  bool MayAsk() const { return !link_ || link_->MayAsk(); }
  void Tick();

  const Options options_;
  const Topics topics_;
  const SettingTexts& texts_;
  ModelBook models_;
  const Discovery discovery_;
  const ShareProfiles projectors_;
  OtherShares others_;
  BridgeFleet fleet_;
  std::unique_ptr<BrokerLink> link_;  ///< Null without a broker.
  CommandDesk desk_;
  CommandRunner runner_;
  DriftCheck drift_;
  MetricsService metrics_;
  QTimer tick_;
  QTimer observing_;
};
