#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "fleet/AskSchedule.h"
#include "fleet/FleetClock.h"
#include "fleet/FleetEvents.h"
#include "fleet/FleetNetwork.h"
#include "fleet/FleetPolicy.h"
#include "fleet/FleetTarget.h"
#include "fleet/LiveState.h"
#include "fleet/StateChange.h"
#include "fleet/Visit.h"

namespace AdvancedControl {

/// Visits the projectors of a fleet and keeps their states. It has no threads and no sockets: its
/// owner calls `Tick`, waits for network events until the time that `Tick` returns, and passes the
/// events on. Use from one thread at a time; `Fleet` adds the locking.
///
/// Each projector has one timer: for its next visit, or for the next step of the present one. A
/// projector that is due while too many visits are in progress waits in line.
class FleetWatcher final : public FleetNetwork::Listener {
 public:
  using Peer = FleetNetwork::Peer;

  /// `network` and `clock` outlive it.
  FleetWatcher(const FleetPolicy& policy, FleetNetwork& network, const FleetClock& clock);

  /// Adds a projector, or replaces what is known of the one with this identity.
  void Set(FleetTarget target);
  void Remove(const std::string& id);
  void SetAsking(bool asks);
  void SetInterval(std::chrono::milliseconds interval);

  // Of a projector that is not in the fleet these do nothing.

  /// Ends a visit that is under way and begins none until `Resume` was called as often.
  void Pause(const std::string& id);
  void Resume(const std::string& id);
  void Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
             std::optional<PowerState> power);
  void LearnDrift(const std::string& id, std::optional<int> drift);
  void AskSoon(const std::string& id);

  std::optional<LiveState> State(const std::string& id) const;
  std::vector<std::pair<std::string, LiveState>> States() const;
  std::vector<StateChange> History(const std::string& id) const;
  FleetChanges TakeChanges();
  bool HasChanges() const { return !changes_.changes.empty(); }
  const FleetTally& Tally() const { return tally_; }

  /// Does what is due, and returns when something will be, unless the network tells of it before.
  SessionTime Tick();

  void Connected(Peer peer) override;
  void NotConnected(Peer peer, ConnectionState problem) override;
  void InUse(Peer peer) override;
  void Received(Peer peer, std::string_view bytes) override;
  void Closed(Peer peer) override;
  void Noticed(const std::string& address) override;

 private:
  struct Watched {
    FleetTarget target;
    LiveState state{};
    std::vector<StateChange> history{};
    ProjectorMemory memory{};
    AskSchedule schedule{};
    std::unique_ptr<Visit> visit{};  ///< Null while none is under way.
    std::optional<SessionTime> timer{};
    int pauses = 0;
    bool waits = false;      ///< In line for a visit.
    bool asksAgain = false;  ///< Soon after the visit under way, which may have asked too early.
  };

  Watched* Find(const std::string& id);
  const Watched* Find(const std::string& id) const;
  bool MayAsk(const Watched& watched) const { return asks_ && watched.pauses == 0; }
  void SetTarget(Peer peer, FleetTarget target);
  void ForgetHost(Peer peer);
  void Fire(Peer peer);
  void Begin(Peer peer);
  void Drive(Peer peer);
  void Finish(Peer peer);
  void Abandon(Peer peer);
  void Schedule(Peer peer);
  void SetTimer(Peer peer, SessionTime time);
  void ClearTimer(Peer peer);
  void Apply(Watched& watched, LiveState state);

  FleetPolicy policy_;
  FleetNetwork& network_;
  const FleetClock& clock_;
  AskSchedule::Random random_;
  bool asks_ = true;
  std::deque<std::unique_ptr<Watched>> watched_;  ///< By peer; null where one was removed.
  std::vector<Peer> free_;
  std::unordered_map<std::string, Peer> peers_;
  std::unordered_multimap<std::string, Peer> hosts_;  ///< Of PJLink projectors.
  std::set<std::pair<SessionTime, Peer>> timers_;
  std::deque<Peer> line_;
  /// Where the visits under way are. Somebody may have put a projector into the fleet twice.
  std::set<std::pair<std::string, std::uint16_t>> visited_;
  FleetChanges changes_;
  FleetTally tally_;
};

}  // namespace AdvancedControl
