#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/simulator/fleet/FleetProjectors.h"

enum class FleetProtocol { Wire, PjLink };

/// A projector's end of one connection, without the socket.
class FleetConnection {
 public:
  using Clock = std::chrono::steady_clock;

  /// `projectors` must live as long as this. The connection is counted while it lives.
  FleetConnection(FleetProjectors& projectors, std::size_t projector, FleetProtocol protocol,
                  const std::string& password);
  ~FleetConnection();
  FleetConnection(const FleetConnection&) = delete;
  FleetConnection& operator=(const FleetConnection&) = delete;

  std::size_t Projector() const { return projector_; }
  FleetProtocol Protocol() const { return protocol_; }

  /// What is sent first, empty for nothing.
  std::string Greeting() const;
  /// The replies to what is complete by now.
  std::vector<std::string> Receive(std::string_view bytes);
  /// Whether the projector closes it after these.
  bool IsOver() const;
  /// Whether the other end has been silent for longer than a projector puts up with.
  bool IsAbandoned(Clock::time_point now) const;

  std::string unsent;             ///< What the socket did not take yet.
  Clock::time_point nextPiece{};  ///< Of replies that are sent byte by byte.

 private:
  class Counted;
  struct PjLinkEnd;
  struct WireEnd;

  FleetProjectors& projectors_;
  const std::size_t projector_;
  const FleetProtocol protocol_;
  std::unique_ptr<PjLinkEnd> pjLink_;
  std::unique_ptr<WireEnd> wire_;
  Clock::time_point lastHeard_ = Clock::now();
};
