#pragma once

#include <functional>
#include <optional>
#include <vector>

#include <QObject>

#include "app/bridge/LatencyHistogram.h"
#include "app/bridge/Metrics.h"
#include "app/bridge/ShareProfiles.h"
#include "fleet/Fleet.h"

/// Watches the projectors of a share. Belongs to the thread that makes it, on which it reports
/// changes.
class BridgeFleet {
 public:
  /// A projector may have changed.
  using Changed = std::function<void(std::size_t projector)>;

  /// `projectors` must outlive it. Asks nothing until `SetAsking`.
  BridgeFleet(const ShareProfiles& projectors, const FleetPolicy& policy, Changed changed);

  const ShareProfiles& Projectors() const { return projectors_; }
  void SetAsking(bool asks);
  /// Makes all projectors unknown, so that each is visited at once.
  void Forget();
  LiveState State(std::size_t projector) const;
  std::vector<MeasuredProjector> States() const;
  Fleet& Watched() { return fleet_; }
  FleetTally Tally() const { return fleet_.Tally(); }
  const LatencyHistogram& Answers() const { return answers_; }

  /// Looks for changes that the fleet does not report as events: the times that answers took, and
  /// the reasons for silence. Must be called more often than projectors are visited.
  void Observe();

 private:
  struct Seen {
    std::optional<WallTime> answered{};
    ConnectionState connection = ConnectionState::Unused;
  };

  void TakeChanges();

  const ShareProfiles& projectors_;
  const Changed changed_;
  std::vector<Seen> seen_;
  LatencyHistogram answers_;
  bool asks_ = false;
  QObject context_;
  Fleet fleet_;  ///< Ends first.
};
