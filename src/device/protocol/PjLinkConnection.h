#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ConnectionState.h"
#include "device/protocol/PjLinkReader.h"

namespace AdvancedControl {

using PjLinkTime = std::chrono::steady_clock::time_point;

/// What a driver has to do next.
struct PjLinkStep {
  enum class Kind {
    Finished,  ///< Nothing: the answer is there.
    Connect,   ///< Connect, and say what came of it; nobody waits longer than `until`.
    Send,      ///< Send `bytes`.
    Wait,      ///< Pass on what happens until `until`, then ask again what is next.
    Close,     ///< Close the connection.
  };

  Kind kind = Kind::Finished;
  PjLinkTime until{};
  std::string bytes{};
};

struct PjLinkRequest {
  char protocolClass = '1';
  std::string command{};
  std::string parameter{};
};

struct PjLinkAnswer {
  /// The reply's, `OK` and errors included; nothing where no reply came.
  std::optional<std::string> parameter{};
  bool sent = false;  ///< Whether the request may have been carried out.
};

struct PjLinkLimits {
  using Time = std::chrono::milliseconds;

  Time connect{2000};  ///< Until the projector has greeted, with all attempts.
  Time answer{2000};   ///< For each request.
  /// Before the second attempt to connect; it doubles before each further one. Some projectors need
  /// a while from one connection to the next.
  Time pause{50};
  /// How long after its first reply a projector that closes the connection after each one may take
  /// to do so.
  Time closing{100};
};

/// The connection to a PJLink projector as one request after the other needs it, without a socket
/// and without a clock: a driver owns both, does each `Next` step, and passes on what happens. Then
/// it asks again for the next step, until the request is finished.
///
/// Connects when there is a request and no connection; where nobody listens, or the projector
/// closes the connection without a greeting, again and again until the time is over, with growing
/// pauses. The connection then stands until the projector closes it, a request stays unanswered, or
/// what comes is no PJLink.
///
/// A change is not sent on a connection that is just ending: it would be lost, and nobody could
/// tell whether it was carried out. Behind the first reply of a connection it therefore waits
/// whether the projector closes it. One that has not done so keeps the connection for further
/// requests.
///
/// A question is asked once more where its connection broke or something else than a reply came; a
/// change never is. One request is under way at a time: replies bear no number, and a projector
/// need not take a second request before it has answered the first. Replies to other commands are
/// dropped, as is what comes unasked. The class in a reply is not looked at, as some always say 1.
class PROJECTOR_COMMON_EXPORT PjLinkConnection {
 public:
  PjLinkConnection(std::string password, const PjLinkLimits& limits)
      : password_(std::move(password)), limits_(limits) {}

  /// Begins a request. `time` is that for its answer.
  void Ask(PjLinkRequest request, PjLinkLimits::Time time, PjLinkTime now);
  PjLinkStep Next(PjLinkTime now);
  const PjLinkAnswer& Answer() const { return answer_; }
  ConnectionState State() const { return state_; }
  /// Whether the projector has let us in at least once, and did not turn the password down.
  bool HasGreeted() const { return hasGreeted_; }

  // What happens, at any time.

  void Connected();
  void NotConnected(ConnectionState problem, PjLinkTime now);
  void Received(std::string_view bytes, PjLinkTime now);
  void Closed(PjLinkTime now);

 private:
  enum class Stage { Idle, Pausing, Connecting, Greeting, Settling, Sending, Awaiting };

  void Open(PjLinkTime now);
  void OpenLater(ConnectionState problem, PjLinkTime now);
  void TakeGreeting(std::string_view line);
  void TakeReply(const std::string& line, PjLinkTime now);
  void Lose(ConnectionState problem);
  void Finish(ConnectionState state);
  void Drop();

  const std::string password_;
  const PjLinkLimits limits_;
  PjLinkRequest request_;
  PjLinkLimits::Time answerTime_{};
  PjLinkAnswer answer_;
  bool mayRepeat_ = false;
  bool sawOther_ = false;  ///< A line that is no reply, since the request was sent.

  Stage stage_ = Stage::Idle;
  ConnectionState state_ = ConnectionState::Unused;
  bool hasGreeted_ = false;
  bool isOpen_ = false;  ///< As far as the driver has told.
  bool closes_ = false;  ///< The driver is to close it.
  int replies_ = 0;      ///< On this connection.
  PjLinkTime repliedAt_{};
  PjLinkTime until_{};  ///< End of the pause, of connecting, of settling, or of waiting for the
                        ///< answer.
  PjLinkTime connectBy_{};
  PjLinkLimits::Time pause_{};
  std::optional<ConnectionState> problem_;  ///< Of the last attempt to connect.
  PjLinkReader reader_;
  std::string proof_;  ///< Goes before the session's first request.
};

}  // namespace AdvancedControl
