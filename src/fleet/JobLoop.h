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

/// Works on several projectors at a time on one thread. Each work is a fiber, and waits for its
/// projector in a `JobChannel`, while the others go on.
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

  // For channels, in a work:

  /// The receiver gets the events of the work's connection; null for none.
  void SetReceiver(Peer peer, Receiver* receiver) { works_[peer].receiver = receiver; }
  FleetNetwork& Network() { return network_; }
  /// Waits until something happens at the work's connection, or until then, at least for one look
  /// at the network.
  void Wait(Peer peer, SessionTime until);

 private:
  struct Work {
    std::unique_ptr<Fiber> fiber;
    Receiver* receiver = nullptr;
    SessionTime until{};  ///< Waits until then.
    bool goesOn = true;   ///< As something has happened.
  };

  void Connected(Peer peer) override;
  void NotConnected(Peer peer, ConnectionState problem) override;
  void InUse(Peer peer) override { NotConnected(peer, ConnectionState::NotReachable); }
  void Received(Peer peer, std::string_view bytes) override;
  void Closed(Peer peer) override;
  void Noticed(const FleetNetwork::Notice&) override {}
  /// Tells a work's receiver what happened.
  void Notify(Peer peer, const auto& what);
  /// Continues each work that has waited long enough. The time at which the next one has.
  SessionTime Continue();

  SocketNetwork network_;
  std::vector<Work> works_;
};

}  // namespace AdvancedControl
