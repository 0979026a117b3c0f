#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "device/protocol/SessionStep.h"
#include "fleet/Fiber.h"
#include "fleet/SocketNetwork.h"

namespace AdvancedControl {

/// Works on several projectors at the same time on one thread. Each of them has a fiber for its
/// work, which waits for the projector in a `JobChannel` while the other fibers go on.
class JobLoop final : private FleetNetwork::Listener {
 public:
  using Peer = FleetNetwork::Peer;

  /// Receives the events of a work's connection.
  class Receiver {
   public:
    virtual ~Receiver() = default;
    virtual void Connected() = 0;
    virtual void NotConnected(ConnectionState problem, SessionTime now) = 0;
    virtual void Received(std::string_view bytes, SessionTime now) = 0;
    virtual void Closed(SessionTime now) = 0;
  };

  /// Calls `work` with the numbers from 0 up to `count`, all at the same time, and returns when all
  /// have returned. `work` must not throw.
  void Run(Peer count, const std::function<void(Peer)>& work);

  // For the channels of a work:

  /// Sets who gets the events of the work's connection; null for none.
  void SetReceiver(Peer peer, Receiver* receiver) { works_[peer].receiver = receiver; }
  FleetNetwork& Network() { return network_; }
  /// Waits for an event of the connection, or until the time `until`. Always checks the network at
  /// least once.
  void Wait(Peer peer, SessionTime until);

 private:
  struct Work {
    std::unique_ptr<Fiber> fiber;
    Receiver* receiver = nullptr;
    SessionTime until{};  ///< Waits until then.
    bool goesOn = true;   ///< There was an event for it.
  };

  void Connected(Peer peer) override;
  void NotConnected(Peer peer, ConnectionState problem) override;
  void InUse(Peer peer) override { NotConnected(peer, ConnectionState::NotReachable); }
  void Received(Peer peer, std::string_view bytes) override;
  void Closed(Peer peer) override;
  void Noticed(const FleetNetwork::Notice&) override {}
  /// Tells a work's receiver what happened.
  void Notify(Peer peer, const auto& what);
  /// Resumes all work that has waited long enough. Returns when the next one is due.
  SessionTime Continue();

  SocketNetwork network_;
  std::vector<Work> works_;
};

}  // namespace AdvancedControl
