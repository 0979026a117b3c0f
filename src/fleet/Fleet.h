#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/AddressHold.h"
#include "fleet/CallersFirst.h"
#include "fleet/FleetClock.h"
#include "fleet/FleetEvents.h"
#include "fleet/FleetPolicy.h"
#include "fleet/FleetTarget.h"
#include "fleet/LiveState.h"
#include "fleet/SocketNetwork.h"

namespace AdvancedControl {

class FleetStates;
class FleetWatcher;

/// Watches any number of projectors from one thread of its own, as docs/fleet.md describes. All
/// functions may be called from any thread and return at once.
class PROJECTOR_FLEET_EXPORT Fleet {
 public:
  /// `onChanges` is called on the fleet's thread when the first change has come since the last
  /// `TakeChanges`.
  explicit Fleet(
      const FleetPolicy& policy = {}, std::function<void()> onChanges = [] {});
  /// Ends every visit; takes a few milliseconds.
  ~Fleet();
  Fleet(const Fleet&) = delete;
  Fleet& operator=(const Fleet&) = delete;

  /// Adds a projector, which is visited at once, or replaces the one with this identity.
  void Set(FleetTarget target);
  void Remove(const std::string& id);

  /// Switches the visits on or off; they are on at first. Switching off also ends those under way.
  void SetAsking(bool asks);
  /// Replaces `FleetPolicy::interval`; also applies to the pauses under way.
  void SetInterval(std::chrono::milliseconds interval);

  class Pause;

  /// Updates the state with the reply to a command that was sent over another connection. `power`
  /// is the exact state that the connection reports.
  void Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
             std::optional<PowerState> power = {});
  /// Sets how many settings differ from what they should be.
  void LearnDrift(const std::string& id, std::optional<int> drift);
  /// Visits the projector as early as the policy allows.
  void AskSoon(const std::string& id);
  /// Receives the status notices of PJLink projectors with a numeric address. `address` is a
  /// numeric address of this machine; port 0 chooses a free port. Returns the port, or 0 if it
  /// cannot be opened.
  std::uint16_t ListenForNotices(const std::string& address, std::uint16_t port = 4352);

  /// Nothing for a projector that is not in the fleet.
  std::optional<LiveState> State(const std::string& id) const;
  std::vector<std::pair<std::string, LiveState>> States() const;
  /// The last changes of a projector, the oldest first.
  std::vector<StateChange> History(const std::string& id) const;
  /// The oldest changes that were not taken yet: at most a thousand, so that an event loop is not
  /// blocked for long. If there are more, `onChanges` is called again.
  FleetChanges TakeChanges();
  FleetTally Tally() const;

 private:
  void Run();
  void Change(const auto& use);

  const std::function<void()> onChanges_;
  const SystemFleetClock clock_;
  SocketNetwork network_;
  const std::unique_ptr<FleetStates> states_;
  mutable CallersFirst lock_;
  const std::unique_ptr<FleetWatcher> watcher_;  ///< Under the lock.
  bool ends_ = false;                            ///< Under the lock.
  std::optional<AddressHold::Observer> held_;
  std::thread thread_;
};

/// While an object of this class exists, the fleet visits nothing at the projector's address. It
/// must not outlive the fleet. It keeps nobody else away: a connection needs an
/// `AddressHold`.
class PROJECTOR_FLEET_EXPORT Fleet::Pause {
 public:
  [[nodiscard]] Pause(Fleet& fleet, std::string id);
  ~Pause();
  Pause(const Pause&) = delete;
  Pause& operator=(const Pause&) = delete;

 private:
  Fleet& fleet_;
  const std::string id_;
};

}  // namespace AdvancedControl
