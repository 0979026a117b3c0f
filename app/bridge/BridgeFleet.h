#pragma once

#include <functional>
#include <optional>
#include <unordered_map>
#include <vector>

#include <QByteArray>
#include <QObject>
#include <QString>

#include "app/bridge/LatencyHistogram.h"
#include "app/bridge/Metrics.h"
#include "app/bridge/Share.h"
#include "fleet/Fleet.h"
#include "fleet/FleetProfile.h"

/// The projectors of a share, watched. Belongs to the thread that makes it, on which it tells what
/// has changed.
class BridgeFleet {
 public:
  /// A projector may have changed.
  using Changed = std::function<void(std::size_t projector)>;

  /// Takes the profiles of the share, without simulated projectors. Asks nothing until `SetAsking`.
  BridgeFleet(std::vector<FleetProfile> profiles, const Share& share, const FleetPolicy& policy,
              Changed changed);

  /// Two projectors whose identities would have the same topic; empty when all is well.
  const QString& Error() const { return error_; }
  std::size_t Count() const { return profiles_.size(); }
  const FleetProfile& Profile(std::size_t projector) const { return profiles_[projector]; }
  /// The identity as a level of a topic.
  const QByteArray& Id(std::size_t projector) const { return ids_[projector]; }
  std::optional<std::size_t> Find(const QByteArray& id) const;
  std::optional<std::size_t> FindName(std::string_view name) const;

  void SetAsking(bool asks);
  LiveState State(std::size_t projector) const;
  std::vector<MeasuredProjector> States() const;
  Fleet& Watched() { return fleet_; }
  FleetTally Tally() const { return fleet_.Tally(); }
  const LatencyHistogram& Answers() const { return answers_; }

  /// Looks for what is no event of its own: answers that took some time, and reasons for silence.
  /// To be called more often than projectors are visited.
  void Observe();

 private:
  struct Seen {
    std::optional<WallTime> answered{};
    ConnectionState connection = ConnectionState::Unused;
  };

  void TakeChanges();
  std::optional<std::size_t> IndexOf(const std::string& identity) const;

  const Changed changed_;
  QString error_;
  std::vector<FleetProfile> profiles_;
  std::vector<QByteArray> ids_;
  std::unordered_map<std::string, std::size_t> ofIdentity_;
  std::unordered_map<std::string, std::size_t> ofName_;
  std::unordered_map<std::string, std::size_t> ofId_;
  std::vector<Seen> seen_;
  LatencyHistogram answers_;
  bool asks_ = false;
  QObject context_;
  Fleet fleet_;  ///< Ends first.
};
