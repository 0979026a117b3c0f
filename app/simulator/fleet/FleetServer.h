#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "app/simulator/fleet/FleetConnections.h"
#include "app/simulator/fleet/FleetEvents.h"
#include "app/simulator/fleet/FleetNotices.h"
#include "app/simulator/fleet/FleetProjectors.h"
#include "app/simulator/fleet/FleetSockets.h"
#include "app/simulator/fleet/FleetTimer.h"

/// Serves many projectors over our wire and PJLink while the event loop runs: one port of each at
/// every loopback address. A connection belongs to the projector at the address that it was made
/// to, and is reset if there is none. Also answers the search of PJLink class 2 and sends its
/// status notices.
class FleetServer {
 public:
  struct Options {
    std::uint16_t wirePort = 0;                     ///< 0 chooses a free port.
    std::uint16_t pjLinkPort = 0;                   ///< Of TCP and UDP; 0 chooses a free port.
    std::string password;                           ///< Of PJLink; empty for none.
    std::optional<FleetSockets::Endpoint> notices;  ///< Where to send status notices.
  };

  /// `projectors` must outlive this.
  FleetServer(FleetProjectors& projectors, const Options& options);
  ~FleetServer();
  FleetServer(const FleetServer&) = delete;
  FleetServer& operator=(const FleetServer&) = delete;

  /// Returns whether all ports could be opened; otherwise errno has the reason.
  bool Listen();
  std::uint16_t WirePort() const { return wirePort_; }
  std::uint16_t PjLinkPort() const { return pjLinkPort_; }

  /// Resets a projector's connections, as when it loses its network.
  void Disconnect(std::size_t projector) { connections_.Disconnect(projector); }
  FleetNotices& Notices() { return notices_; }

 private:
  void Handle(int descriptor, std::uint32_t events);
  void AcceptAll(int listener, FleetProtocol protocol);

  std::uint16_t wirePort_;
  std::uint16_t pjLinkPort_;
  int wireListener_ = -1;
  int pjLinkListener_ = -1;
  FleetEvents events_;
  FleetTimer timer_;
  FleetNotices notices_;
  FleetConnections connections_;
};
