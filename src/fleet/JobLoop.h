#pragma once

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "device/protocol/SessionStep.h"
#include "fleet/Fiber.h"
#include "fleet/PeerTimers.h"
#include "fleet/SocketNetwork.h"

namespace AdvancedControl {

/// Works on several projectors at the same time on one thread. Each of them has a fiber for its
/// work, which waits for the projector in a `JobConnection` while the other fibers go on.
class PROJECTOR_FLEET_EXPORT JobLoop {
 public:
  using Peer = FleetNetwork::Peer;

  /// Receives the events of a connection.
  class Receiver {
   public:
    virtual ~Receiver() = default;
    virtual void Connected() = 0;
    virtual void NotConnected(ConnectionState problem, SessionTime now) = 0;
    virtual void Received(std::string_view bytes, SessionTime now) = 0;
    virtual void Closed(SessionTime now) = 0;
  };

  JobLoop();
  ~JobLoop();
  JobLoop(const JobLoop&) = delete;
  JobLoop& operator=(const JobLoop&) = delete;

  /// Calls `work` with the numbers from 0 up to `count`, all at the same time, and returns when all
  /// have returned. `work` must not throw. May be called again, also on another thread.
  void Run(std::size_t count, const std::function<void(std::size_t)>& work);
  /// Continues all work that is in `Pause`. Any thread.
  void WakeAll();

  /// In the work of a loop, lets other work go on until then, or until `WakeAll`. Elsewhere, the
  /// thread sleeps.
  static void Pause(SessionTime until);

  // For connections. One may outlive the work that made it, but not the loop.

  Peer Add(Receiver& receiver);
  void Remove(Peer peer);
  SocketNetwork& Network() { return network_; }
  /// In a work, waits for an event of the connection, or until the time `until`. Always checks the
  /// network at least once.
  void Wait(Peer peer, SessionTime until);

 private:
  using Number = PeerTimers::Peer;  ///< Of a task.

  struct Connection {
    Receiver* receiver = nullptr;
    bool isAwaited = false;  ///< A task waits for an event.
    Number work = 0;         ///< The task that waits.
  };

  class Events;

  /// Resumes all work that has waited long enough. Returns whether any is left.
  bool Continue();
  void Suspend(SessionTime until);

  SocketNetwork network_;
  std::vector<Connection> connections_;  ///< By peer.
  std::vector<Peer> free_;
  std::vector<std::unique_ptr<Fiber>> works_;
  PeerTimers timers_;         ///< Of works.
  std::set<Number> pausing_;  ///< Works in `Pause`.
  std::size_t unfinished_ = 0;
  Number present_ = 0;  ///< The work that runs.
  std::atomic<bool> wakesAll_ = false;
};

}  // namespace AdvancedControl
