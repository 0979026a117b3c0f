#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "device/ConnectionState.h"

namespace AdvancedControl {

/// The connections of a fleet: sockets, or what a test puts in their place. A peer is a number that
/// the caller chooses; it has one connection at most.
class FleetNetwork {
 public:
  using Peer = std::uint32_t;

  /// Told what happens, never from inside a call of the network.
  class Listener {
   public:
    virtual ~Listener() = default;
    virtual void Connected(Peer peer) = 0;
    virtual void NotConnected(Peer peer, ConnectionState problem) = 0;
    virtual void Received(Peer peer, std::string_view bytes) = 0;
    /// The other end closed the connection, or it broke; it is gone.
    virtual void Closed(Peer peer) = 0;
    /// Somebody at this numeric address says that something has changed at a projector.
    virtual void Noticed(const std::string& address) = 0;
  };

  virtual ~FleetNetwork() = default;

  /// Begins to connect, and ends the connection before. `host` is a name or an address.
  virtual void Connect(Peer peer, const std::string& host, std::uint16_t port) = 0;
  /// What cannot be sent at once breaks the connection, of which the listener is then told.
  virtual void Send(Peer peer, std::string_view bytes) = 0;
  /// Ends the connection, or the attempt. Nothing more is told of it.
  virtual void Close(Peer peer) = 0;
};

}  // namespace AdvancedControl
