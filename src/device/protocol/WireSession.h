#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/SessionStep.h"
#include "device/protocol/WireCommand.h"
#include "device/protocol/WireConnection.h"
#include "device/protocol/WireFrame.h"
#include "device/protocol/WireRequests.h"

namespace AdvancedControl {

struct WireLimits {
  std::chrono::milliseconds connect{1500};  ///< Until the projector's welcome.
  std::chrono::milliseconds answer{1500};
};

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

  /// The first frame has the number after `sequence`, which should be random: on a serial line, a
  /// late reply may be for the previous program.
  WireSession(Medium medium, const WireLimits& limits, std::uint16_t sequence)
      : medium_(medium), limits_(limits), requests_(sequence) {}

  /// Sets the time-out of further commands. The time-outs of the limits still apply.
  void GiveUpAfter(std::chrono::milliseconds time) { command_.GiveUpAfter(time); }
  /// The reads are sent in one burst when the first of them is begun. Replies are used in the order
  /// announced, until a change comes in between, or a pause longer than the time for an answer.
  /// That time starts anew with each reply.
  void Announce(std::span<const PjtCommand> reads);

  void Begin(const PjtCommand& command, SessionTime now);
  SessionStep Next(SessionTime now);
  /// The reply to the last command, once it is finished.
  const PjtReply& Reply() const { return command_.Reply(); }
  ConnectionState State() const { return connection_.State(); }
  /// Whether the projector has welcomed us on the last connection. It need not have answered a
  /// command.
  bool HasGreeted() const {
    const auto& welcome = connection_.Welcome();
    return welcome && welcome->version == Wire::kVersion;
  }
  /// Whether the connection can still be used, as far as the session knows.
  bool IsOpen() const { return connection_.IsOpen(); }

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
    AwaitingWelcome,
    AwaitingReply,
  };

  void Start(SessionTime now);
  /// Takes the next step within the session. False if that needs an event or more time.
  bool Advance(SessionTime now);
  void SendRequest();
  void TakeWelcome(SessionTime now);
  void TakeReply(const Wire::Reply& reply, SessionTime now);
  void Await(Stage stage, SessionTime until);
  void Fail(ConnectionState problem);

  const Medium medium_;
  const WireLimits limits_;
  Stage stage_ = Stage::Idle;
  SessionTime until_{};  ///< End of the present stage.
  WireConnection connection_;
  WireRequests requests_;
  WireCommand command_;
};

}  // namespace AdvancedControl
