#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "app/simulator/fleet/FleetProjectors.h"
#include "app/simulator/fleet/FleetSockets.h"
#include "app/simulator/fleet/FleetTimer.h"

/// The datagrams of the projectors with PJLink class 2: answers to searches, and status notices if
/// there is a receiver. A projector that is off the network or silent sends none.
class FleetNotices {
 public:
  /// `projectors` and `timer` must outlive this. Without a receiver there are no notices.
  FleetNotices(FleetProjectors& projectors, FleetTimer& timer,
               std::optional<FleetSockets::Endpoint> receiver);
  ~FleetNotices();
  FleetNotices(const FleetNotices&) = delete;
  FleetNotices& operator=(const FleetNotices&) = delete;

  /// Opens the UDP port at every loopback address. Returns whether it succeeded; otherwise errno
  /// has the reason.
  bool Open(std::uint16_t port);
  int Socket() const { return socket_; }

  /// Reads the searches that have arrived, and answers them.
  void AnswerSearches();
  /// Announces every projector, as `Announce` does.
  void AnnounceAll();
  /// Announces that the projector is on the network, and sends its state.
  void Announce(std::size_t projector);
  /// Sends what has changed in the projector's state since the last notices. While it is switching,
  /// further changes are sent when they happen.
  void SendChanges(std::size_t projector);

 private:
  /// Runs the action for each projector, a few at a time, because no receiver could take datagrams
  /// from all of them at once.
  void ForEachInTurn(const std::function<void(std::size_t)>& action);
  void AnswerSearch(std::size_t projector, FleetSockets::Endpoint asker);
  bool SendsNotices(std::size_t projector) const;
  void SendNotice(const FleetProjector& projector, std::string_view text);

  FleetProjectors& projectors_;
  FleetTimer& timer_;
  const std::optional<FleetSockets::Endpoint> receiver_;
  int socket_ = -1;
};
