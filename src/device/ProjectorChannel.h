#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

#include "ProjectorCommonExport.h"
#include "device/ConnectionState.h"
#include "device/ModelData.h"
#include "device/PjtOperation.h"

/// One command to the projector.
struct PjtCommand {
  PjtOperation operation;
  std::uint16_t code = 0;  ///< Command code of the generic operations, 0 for the named ones.
  std::int16_t first = 0;  ///< Value, or the source, channel or point that the operation addresses.
  std::int16_t second = 0;  ///< Value of an addressed operation, or the operation's flag.

  friend bool operator==(const PjtCommand&, const PjtCommand&) = default;
};

/// What came back.
struct PjtReply {
  int result = 0;          ///< Success or refusal as the operation's family says (`IsSuccess`).
  std::int16_t value = 0;  ///< The value read or stepped to; meaningful only on success.
  bool answered = true;    ///< False when no answer came; `result` is then a refusal.
  bool offered = true;   ///< False when it is known that the projector has no such setting at all;
                         ///< `result` is then a refusal.
  bool busy = false;     ///< True when the projector cannot do it now: it switches, warms up, cools
                         ///< down or is in standby; `result` is then a refusal.
  bool pending = false;  ///< True when a change was accepted and the projector did not have it yet
                         ///< when the time was over; `result` is then a success.
  bool unsent = false;   ///< True when the command is unanswered and never left, so that the
                         ///< projector cannot have carried it out.
  bool abandoned = false;  ///< True when the command is unanswered because nobody waited any more.
};

/// What a projector does, where it tells more than the value of its running state says.
enum class PowerState : std::uint8_t { Standby, On, CoolingDown, WarmingUp };

/// The way to one projector: a real connection, a simulation, or a channel around a channel that
/// logs, bounds or disturbs. Called from one thread at a time; `Connection`, `Inputs` and `Power`
/// from any.
class PROJECTOR_COMMON_EXPORT ProjectorChannel {
 public:
  virtual ~ProjectorChannel() = default;

  /// Blocks until the projector answered or the channel gave up. Never throws.
  virtual PjtReply Execute(const PjtCommand& command) = 0;

  /// Says which reads are about to be executed, in this order, so that a channel may ask for all of
  /// them at once. Binds nobody: any command may follow. Replaces what was announced before.
  virtual void Announce(std::span<const PjtCommand>) {}

  /// Each command that follows is given up after this time, where the channel can do so, and after
  /// the channel's own time at the latest.
  virtual void GiveUpAfter(std::chrono::milliseconds) {}

  /// Nobody waits for the projector any more, nor for what was announced. An `Execute` that lets an
  /// event loop run ends at once, unanswered; the reply to its command is dropped. A channel that
  /// spares a silent projector forgets that it was silent. Called on the thread of `Execute`, from
  /// inside its event loop or between two commands.
  virtual void Abandon() {}

  /// How the connection stands; of a channel that has none, `ConnectionState::None`.
  virtual ConnectionState Connection() const { return ConnectionState::None; }

  /// The inputs as the projector itself has told them; nothing as long as it has not. Waits for
  /// nothing: once asked, a channel that can find them out does so when it is idle.
  virtual std::optional<SourceList> Inputs() { return std::nullopt; }

  /// The power state as the projector itself told it last; nothing as long as it has not, or where
  /// the value of the running state is all that it tells. Waits for nothing.
  virtual std::optional<PowerState> Power() const { return std::nullopt; }

  /// Nobody waits for the projector, which has answered the last command: time for one exchange of
  /// the channel's own. Whether there is more to do. Called on the thread of `Execute`, between two
  /// commands. Never throws.
  virtual bool UseIdleTime() { return false; }

  /// Looks after the connection, which no command has used for the time `unused`: notices that the
  /// other end has closed it, and closes one that has not been used for long. Whether there is one
  /// still. Waits for nothing. Called on the thread of `Execute`, between two commands. Never
  /// throws.
  virtual bool TendConnection(std::chrono::milliseconds unused) {
    static_cast<void>(unused);
    return false;
  }
};
