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

/// A session with a projector that speaks the protocol of docs/wire.md: what a command becomes on
/// the line, what the answers mean, and when to give up. Needs no line and no clock, but a driver
/// that does each step of `Next` and tells what happens, until the command that was begun is
/// finished; the reply is there then.
///
/// Asks for a connection with the first command, and again with the next one after it was lost.
/// Where there is no noise, the command goes out right behind the hello. A projector that has
/// forgotten the hello is told again. A command whose reply does not come in time, or during which
/// the connection breaks, is unanswered and was carried out at most once; its reply is nobody's if
/// it comes later.
class PROJECTOR_COMMON_EXPORT WireSession {
 public:
  enum class Medium : std::uint8_t {
    Reliable,  ///< Bytes that are no frame show that no projector is there.
    Noisy,     ///< Such bytes are skipped. Everything is said one at a time.
  };
  struct Limits {
    std::chrono::milliseconds connect{1500};  ///< Until the projector has welcomed us.
    std::chrono::milliseconds answer{1500};
  };

  /// Frames are numbered from behind `sequence` on. It should be random: on a serial line a late
  /// reply may be that to somebody before us.
  WireSession(Medium medium, const Limits& limits, std::uint16_t sequence)
      : medium_(medium), limits_(limits), sequence_(sequence) {}

  /// Commands have this time from now on, beside that of the limits.
  void GiveUpAfter(std::chrono::milliseconds time) { longest_ = time; }
  /// The reads go out in one burst when the first of them is begun. A reply counts for its own
  /// command in the order announced, as long as neither a change came in between nor a pause longer
  /// than the time for answering; that time counts anew for each.
  void Announce(std::span<const PjtCommand> reads);

  void Begin(const PjtCommand& command, SessionTime now);
  SessionStep Next(SessionTime now);
  /// What came of the command, once it is finished.
  const PjtReply& Reply() const { return reply_; }
  ConnectionState State() const { return state_; }
  /// Whether the projector has welcomed us on the last connection. It need not have answered a
  /// command.
  bool HasGreeted() const { return welcome_ && welcome_->version == Wire::kVersion; }
  /// Whether the connection can still be used, as far as what came tells.
  bool IsOpen() const { return isOpen_; }

  // What happens, at any time.

  void Connected();
  void NotConnected(ConnectionState problem);
  void Received(std::string_view bytes);
  /// The connection is no longer there, or cannot be used for this reason.
  void Closed(ConnectionState problem = ConnectionState::Lost);

 private:
  enum class Stage : std::uint8_t {
    Idle,
    Opening,
    Connecting,
    Greeting,  ///< Waits for the welcome before anything is asked.
    Asking,
    AwaitingRoom,
    AwaitingWelcome,
    AwaitingReply,
  };

  /// A request on its way, and its reply once it is there.
  struct Sent {
    PjtCommand command;
    std::uint16_t sequence;
    std::optional<Wire::Reply> reply;
  };

  /// From now on, but not longer than the command may take.
  SessionTime Within(std::chrono::milliseconds time, SessionTime now) const;
  void Start(SessionTime now);
  /// Goes on as far as possible without anything happening; false where something has to.
  bool Advance(SessionTime now);
  void Ask(SessionTime now);
  void Make();
  void Put(std::span<const PjtCommand> commands);
  /// How many more requests may be unanswered. The replies come in the order of the requests.
  std::size_t Room() const;
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
  bool isOpen_ = false;    ///< As far as the driver has told.
  bool closes_ = false;    ///< The driver is to close it.
  bool finishes_ = false;  ///< And the driver has not been told.
  SessionTime until_{};    ///< End of the present stage.
  Wire::Decoder decoder_;
  std::uint16_t sequence_;      ///< Of the last frame made.
  std::uint16_t hello_ = 0;     ///< The sequence number of ours.
  std::uint16_t answered_ = 0;  ///< That of the last request answered, or of the hello before.
  std::optional<Wire::Welcome> welcome_;
  SessionTime welcomeBy_{};
  std::optional<std::chrono::milliseconds> longest_;  ///< For a command.
  SessionTime giveUpAt_ = SessionTime::max();
  PjtCommand command_{PjtOperation::Get};
  bool isSent_ = false;                ///< The command under way, as far as that may be.
  bool wasForgotten_ = false;          ///< And is told once more, from the hello on.
  std::string unsent_;                 ///< Goes out with the next step.
  std::vector<PjtCommand> announced_;  ///< Not sent yet.
  std::deque<Sent> sent_;
  SessionTime lastAsked_{};
  PjtReply reply_;
};

}  // namespace AdvancedControl
