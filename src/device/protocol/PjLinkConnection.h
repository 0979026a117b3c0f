#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <utility>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ConnectionState.h"
#include "device/protocol/PjLinkAttempts.h"
#include "device/protocol/PjLinkExchange.h"
#include "device/protocol/PjLinkLogin.h"
#include "device/protocol/PjLinkReader.h"
#include "device/protocol/SessionStep.h"

namespace AdvancedControl {

using PjLinkTime = SessionTime;
using PjLinkStep = SessionStep;

struct PjLinkLimits {
  using Time = std::chrono::milliseconds;

  Time connect{2000};  ///< For all attempts, until the projector's greeting.
  Time answer{2000};   ///< For each request.
  /// Pause before the second attempt to connect; doubled before each further one. Some projectors
  /// need a while between two connections.
  Time pause{50};
  /// The longest time that a projector which closes the connection after each reply may take to do
  /// so.
  Time closing{100};
};

/// The connection to a PJLink projector, for one request after the other. It has no socket and no
/// clock: a driver owns both, performs each step that `Next` returns, reports what happens, and
/// calls `Next` again until the request is finished. Use from one thread at a time.
///
/// Connects when there is a request but no connection. If nobody listens, or the projector closes
/// the connection without a greeting, it tries again until the time-out, with growing pauses. The
/// connection stays open until the projector closes it, a request stays unanswered, or something
/// other than PJLink arrives.
///
/// A change must not be sent on a connection that is about to end: it would be lost, and it would
/// be unknown whether it was carried out. Therefore the first change after the first reply of a
/// connection waits whether the projector closes the connection. If it does not, the connection is
/// used for all further requests.
///
/// A question is repeated once if its connection broke or a line other than its reply came; a
/// change is never repeated. Only one request is under way at a time, because replies have no
/// number, and a projector need not accept a second request before it has answered the first.
/// Replies to other commands and unsolicited lines are dropped. The class in a reply is ignored,
/// because some projectors always send 1.
class PROJECTOR_COMMON_EXPORT PjLinkConnection {
 public:
  PjLinkConnection(std::string password, const PjLinkLimits& limits)
      : limits_(limits), login_(std::move(password)) {}

  /// Starts a request. `time` is the time-out for its answer.
  void Ask(PjLinkRequest request, PjLinkLimits::Time time, PjLinkTime now);
  PjLinkStep Next(PjLinkTime now);
  const PjLinkAnswer& Answer() const { return exchange_.Answer(); }
  ConnectionState State() const { return state_; }
  /// Whether the projector has accepted a connection, and the password, at least once.
  bool HasGreeted() const { return login_.HasGreeted(); }

  // Reports of the driver; allowed at any time.

  void Connected();
  void NotConnected(ConnectionState problem, PjLinkTime now);
  void Received(std::string_view bytes, PjLinkTime now);
  void Closed(PjLinkTime now);

 private:
  enum class Stage : std::uint8_t {
    Idle,
    Pausing,
    Connecting,
    Greeting,
    Settling,
    Sending,
    Awaiting
  };

  void Open(PjLinkTime now);
  void OpenLater(ConnectionState problem, PjLinkTime now);
  void HandleGreeting(std::string_view line);
  void HandleLine(const std::string& line, PjLinkTime now);
  void GiveUp(ConnectionState problem);
  void Finish(ConnectionState state);
  void Drop();

  const PjLinkLimits limits_;
  PjLinkExchange exchange_;
  PjLinkLogin login_;
  PjLinkAttempts attempts_;
  Stage stage_ = Stage::Idle;
  ConnectionState state_ = ConnectionState::Unused;
  bool isOpen_ = false;  ///< As reported by the driver.
  bool closes_ = false;  ///< The driver must close it.
  int replies_ = 0;      ///< Number of replies on this connection.
  PjLinkTime repliedAt_{};
  /// End of the pause, of connecting, of settling, or of waiting for the answer.
  PjLinkTime until_{};
  PjLinkReader reader_;
};

}  // namespace AdvancedControl
