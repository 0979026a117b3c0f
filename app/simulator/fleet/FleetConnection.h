#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/simulator/fleet/FleetProjectors.h"

enum class FleetProtocol { Wire, PjLink };

/// A projector's end of one connection, without the socket. Counts itself and its requests in the
/// projector's `RequestCounts`.
class FleetConnection {
 public:
  using Clock = std::chrono::steady_clock;

  /// `projectors` must outlive this.
  FleetConnection(FleetProjectors& projectors, std::size_t projector, FleetProtocol protocol,
                  const std::string& password);
  ~FleetConnection();
  FleetConnection(const FleetConnection&) = delete;
  FleetConnection& operator=(const FleetConnection&) = delete;

  std::size_t Projector() const { return projector_; }
  FleetProtocol Protocol() const { return protocol_; }

  /// What the projector sends first; may be empty.
  std::string Greeting() const;
  /// Takes received bytes, and returns the replies to the requests that are complete now.
  std::vector<std::string> Receive(std::string_view bytes);
  /// Whether the projector closes the connection after the last replies.
  bool IsOver() const;
  /// Whether the other end has been silent for so long that the projector closes the connection.
  bool IsAbandoned(Clock::time_point now) const;

  std::string unsent;                ///< Bytes that the socket has not taken yet.
  Clock::time_point repliesUntil{};  ///< When the last of its delayed replies is sent.

 private:
  class CountingChannel;
  struct PjLinkEnd;
  struct WireEnd;

  FleetProjectors& projectors_;
  const std::size_t projector_;
  const FleetProtocol protocol_;
  std::unique_ptr<PjLinkEnd> pjLink_;
  std::unique_ptr<WireEnd> wire_;
  Clock::time_point lastHeard_ = Clock::now();
};
