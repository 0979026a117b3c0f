#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/SessionStep.h"
#include "device/protocol/WireFrame.h"

namespace AdvancedControl {

/// A session with a projector that speaks the protocol of docs/wire.md: translates commands into
/// frames, interprets the answers, and decides when to give up. It has no line and no clock: a
/// driver performs each step that `Next` returns and reports what happens, until the command is
/// finished. Then the reply is available. Use from one thread at a time.
///
/// Requests a connection with the first command, and again with the next command after the
/// connection is lost. On a reliable line the command is sent right after the hello. If the
/// projector has forgotten the hello, hello and command are repeated. A command whose reply does
/// not come in time, or during which the connection breaks, is unanswered; it was carried out at
/// most once, and a later reply is dropped.
class PROJECTOR_COMMON_EXPORT WireSession {
 public:
  enum class Medium : std::uint8_t {
    Reliable,  ///< Bytes that are not part of a frame mean that no projector is at the other end.
    Noisy,     ///< Such bytes are skipped. Requests are sent one at a time.
  };
  struct Limits {
    std::chrono::milliseconds connect{1500};  ///< Until the projector's welcome.
    std::chrono::milliseconds answer{1500};
  };

  /// The first frame has the number after `sequence`, which should be random: on a serial line, a
  /// late reply may be for the previous program.
  WireSession(Medium medium, const Limits& limits, std::uint16_t sequence)
      : medium_(medium), limits_(limits), sequence_(sequence) {}

  /// Sets the time-out of further commands. Those of the limits still apply.
  void GiveUpAfter(std::chrono::milliseconds time) { longest_ = time; }
  /// The reads are sent in one burst when the first of them is begun. Replies are used in the order
  /// announced, until a change comes in between, or a pause longer than the time for an answer.
  /// That time starts anew with each reply.
  void Announce(std::span<const PjtCommand> reads);

  void Begin(const PjtCommand& command, SessionTime now);
  SessionStep Next(SessionTime now);
  /// The reply to the last command, once it is finished.
  const PjtReply& Reply() const { return reply_; }
  ConnectionState State() const { return state_; }
  /// Whether the projector has welcomed us on the last connection. It need not have answered a
  /// command.
  bool HasGreeted() const { return welcome_ && welcome_->version == Wire::kVersion; }
  /// Whether the connection can still be used, as far as the session knows.
  bool IsOpen() const { return isOpen_; }

  // Reports of what happened, at any time.

  void Connected();
  void NotConnected(ConnectionState problem);
  void Received(std::string_view bytes);
  /// The connection ended, or became useless for this reason.
  void Closed(ConnectionState problem = ConnectionState::Lost);

 private:
  enum class Stage : std::uint8_t {
    Idle,
    Opening,
    Connecting,
    Greeting,  ///< Waits for the welcome before the first request.
    Asking,
    AwaitingSlot,
    AwaitingWelcome,
    AwaitingReply,
  };

  /// A request that was sent, and its reply once it has arrived.
  struct Sent {
    PjtCommand command;
    std::uint16_t sequence;
    std::optional<Wire::Reply> reply;
  };

  /// A deadline after `time`, but not after that of the command.
  SessionTime Within(std::chrono::milliseconds time, SessionTime now) const;
  void Start(SessionTime now);
  /// Takes the next step within the session. False if that needs an event or more time.
  bool Advance(SessionTime now);
  void Ask(SessionTime now);
  void Make();
  void Put(std::span<const PjtCommand> commands);
  /// How many more requests may be sent without waiting for a reply. Replies come in the order of
  /// the requests.
  std::size_t FreeSlots() const;
  void Take(const Wire::Frame& frame);
  void TakeWelcome(SessionTime now);
  void TakeReply(SessionTime now);
  void Await(Stage stage, SessionTime until);
  void Drop();
  void Fail(ConnectionState problem);
  void Finish(const std::optional<Wire::Reply>& reply);

  const Medium medium_;
  const Limits limits_;
  ConnectionState state_ = ConnectionState::Unused;
  Stage stage_ = Stage::Idle;
  bool isOpen_ = false;    ///< As far as the driver has reported.
  bool closes_ = false;    ///< The driver is to close it.
  bool finishes_ = false;  ///< The command, and `Next` has not returned since.
  SessionTime until_{};    ///< End of the present stage.
  Wire::Decoder decoder_;
  std::uint16_t sequence_;   ///< Of the last frame made.
  std::uint16_t hello_ = 0;  ///< Sequence number of our hello.
  std::uint16_t answered_ =
      0;  ///< Sequence number of the last answered request, or of the hello before that.
  std::optional<Wire::Welcome> welcome_;
  SessionTime welcomeBy_{};
  std::optional<std::chrono::milliseconds> longest_;  ///< Time-out of a command.
  SessionTime giveUpAt_ = SessionTime::max();
  PjtCommand command_{PjtOperation::Get};
  bool isSent_ = false;        ///< Whether the present command may have been sent.
  bool wasForgotten_ = false;  ///< The hello of the present command, which is therefore repeated.
  std::string unsent_;         ///< Sent with the next step.
  std::vector<PjtCommand> announced_;  ///< Not sent yet.
  std::deque<Sent> sent_;
  SessionTime lastAsked_{};
  PjtReply reply_;
};

}  // namespace AdvancedControl
