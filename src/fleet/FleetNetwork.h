#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "device/ConnectionState.h"

namespace AdvancedControl {

/// The connections of a fleet: sockets and serial ports, or a test's simulation of them. The caller
/// identifies each connection by a number of its choice, the peer.
class FleetNetwork {
 public:
  using Peer = std::uint32_t;

  /// A status notice of PJLink, which reports a state of its sender.
  struct Notice {
    std::string address;  ///< Of the sender, as `TextOf` writes it.
    std::string command;  ///< Four letters, in any case.
    std::string value;
  };

  /// Receives events, never from inside a call to the network.
  class Listener {
   public:
    virtual ~Listener() = default;
    virtual void Connected(Peer peer) = 0;
    virtual void NotConnected(Peer peer, ConnectionState problem) = 0;
    /// Another program has the serial port.
    virtual void InUse(Peer peer) = 0;
    virtual void Received(Peer peer, std::string_view bytes) = 0;
    /// The other end closed the connection, or it broke.
    virtual void Closed(Peer peer) = 0;
    virtual void Noticed(const Notice& notice) = 0;
  };

  virtual ~FleetNetwork() = default;

  /// Begins to connect, and ends the connection before. `host` is a name or an address.
  virtual void Connect(Peer peer, const std::string& host, std::uint16_t port) = 0;
  /// The same for a serial port, which nobody else can use until `Close`. `device` is its path,
  /// `baud` its speed in bits per second.
  virtual void OpenLine(Peer peer, const std::string& device, std::int32_t baud) = 0;
  /// If the bytes cannot be sent at once, the connection breaks, and the listener is informed.
  virtual void Send(Peer peer, std::string_view bytes) = 0;
  /// Ends the connection, or the attempt to connect. No more events of it follow.
  virtual void Close(Peer peer) = 0;
  /// The same; nobody has answered in time, so the next attempt may be at another address of the
  /// name.
  virtual void GiveUp(Peer peer) { Close(peer); }
};

}  // namespace AdvancedControl
