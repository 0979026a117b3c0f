#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <QTimer>

#include "app/simulator/fleet/FleetConnection.h"
#include "app/simulator/fleet/FleetEvents.h"
#include "app/simulator/fleet/FleetNotices.h"
#include "app/simulator/fleet/FleetProjectors.h"
#include "app/simulator/fleet/FleetTimer.h"

/// The open connections to the projectors: reads requests, and sends replies as the fault of a
/// projector's line demands. Owns the sockets.
class FleetConnections {
 public:
  /// All references must outlive this. `password` is that of PJLink, empty for none.
  FleetConnections(FleetProjectors& projectors, FleetEvents& events, FleetTimer& timer,
                   FleetNotices& notices, std::string password);
  ~FleetConnections();
  FleetConnections(const FleetConnections&) = delete;
  FleetConnections& operator=(const FleetConnections&) = delete;

  /// Takes an accepted socket. Resets it if there is no projector at its address, or if the
  /// projector has no more connections free.
  void Add(int socket, FleetProtocol protocol);
  void Handle(int socket, std::uint32_t events);
  /// Resets a projector's connections, as when it loses its network.
  void Disconnect(std::size_t projector);

 private:
  using Clock = FleetTimer::Clock;

  /// Null if the socket has no connection.
  FleetConnection* At(int socket);
  void Read(int socket);
  void Reply(int socket, std::string_view reply);
  /// Sends what the socket takes; the rest waits until it takes more.
  void Send(int socket, std::string_view bytes);
  void SendRest(int socket);
  void SendAt(int socket, Clock::time_point due, std::string bytes);
  /// Runs the action at `due` unless the connection ends before.
  void RunAt(int socket, Clock::time_point due, FleetTimer::Action action);
  void End(int socket);
  /// Ends the connection if the socket took everything; otherwise `SendRest` does it.
  void EndIfSent(int socket);
  void EndAbandoned();

  FleetProjectors& projectors_;
  FleetEvents& events_;
  FleetTimer& timer_;
  FleetNotices& notices_;
  const std::string password_;
  std::vector<std::unique_ptr<FleetConnection>> connections_;  ///< By descriptor.
  /// By descriptor: how many connections have used it. Bytes that are sent later are dropped if
  /// their connection no longer has the descriptor.
  std::vector<std::uint32_t> generations_;
  QTimer abandonedCheck_;
};
