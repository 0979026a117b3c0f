#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include <QObject>
#include <QTimer>

#include "fleet/Fleet.h"
#include "fleet/FleetProfile.h"

/// The fleet of the window: watches the projectors of the profile file, and keeps away from those
/// whose dialog uses the connection. Simulated projectors are watched and worked on over loopback
/// addresses, once these are known.
class FleetWatch : public QObject {
  Q_OBJECT

 public:
  /// Where a simulated projector is served.
  struct Served {
    std::string host{};
    std::uint16_t wirePort = 0;
    std::uint16_t pjLinkPort = 0;
  };

  explicit FleetWatch(const FleetPolicy& policy, QObject* parent = nullptr);
  ~FleetWatch() override;

  /// Watches these projectors and no others.
  void SetProfiles(const std::vector<FleetProfile>& profiles);
  void SetServed(const std::string& id, const Served& served);
  bool IsWatched(const std::string& id) const { return watched_.contains(id); }

  /// Sets the time between two visits to a projector.
  void SetInterval(std::chrono::seconds interval) { fleet_->SetInterval(interval); }

  /// The target of a job. Its address is an error if the projector cannot be reached.
  FleetTarget TargetOf(const FleetProfile& profile) const;

  /// The projector's dialog opens. It has the connection until half a minute after a command.
  void LeaveToDialog(const std::string& id);
  /// The dialog is closed. The projector is visited again once its channel has no connection.
  void TakeBack(const std::string& id);
  /// Updates the state with the reply to a command of a dialog or of other work, and leaves the
  /// connection to that work for a while.
  void Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
             std::optional<PowerState> power);

  Fleet& Projectors() { return *fleet_; }

 Q_SIGNALS:
  /// What is known of these projectors has changed.
  void Changed(const std::vector<std::string>& ids);

 private:
  using Clock = std::chrono::steady_clock;

  void Watch(const FleetProfile& profile);
  void Hold(const std::string& id, Clock::duration time);
  void TakeChanges();
  void Tend();

  struct Use {
    std::unique_ptr<Fleet::Pause> pause;
    Clock::time_point until;
  };

  std::unordered_map<std::string, FleetProfile> profiles_;
  std::unordered_map<std::string, FleetTarget> watched_;
  std::map<std::string, Served> served_;
  std::unique_ptr<Fleet> fleet_;
  std::map<std::string, Use> uses_;  // connections in use by others; destroyed before the fleet
  std::set<std::string> open_;       // projectors with an open dialog
  QTimer tending_;
};
