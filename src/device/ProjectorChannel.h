#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ConnectionState.h"
#include "device/ModelData.h"
#include "device/PjtOperation.h"

namespace AdvancedControl {

/// One command to the projector.
struct PjtCommand {
  PjtOperation operation;
  std::uint16_t code = 0;  ///< Command code of the generic operations, 0 for the named ones.
  std::int16_t first = 0;  ///< Value, or the source, channel or point that the operation addresses.
  std::int16_t second = 0;  ///< Value of an addressed operation, or the operation's flag.

  friend bool operator==(const PjtCommand&, const PjtCommand&) = default;
};

/// The reply to a command.
struct PjtReply {
  int result = 0;  ///< Success or refusal, depending on the operation's family (`IsSuccess`).
  std::int16_t value = 0;  ///< The value read or stepped to; meaningful only on success.
  bool answered = true;    ///< False when no answer came; `result` is then a refusal.
  bool offered = true;     ///< False when the projector is known not to have the setting; `result`
                           ///< is then a refusal.
  bool busy = false;       ///< True when the projector cannot do it now, because it is switching,
                           ///< warming up, cooling down or in standby; `result` is then a refusal.
  bool pending = false;    ///< True when a change was accepted but had not taken effect within the
                           ///< time-out; `result` is then a success.
  bool unsent = false;     ///< True when the command is unanswered and was never sent, so that the
                           ///< projector cannot have carried it out.
  bool abandoned = false;  ///< True when the command is unanswered because it was abandoned.
};

/// The power state, if the projector reports it in more detail than the value of its running state.
enum class PowerState : std::uint8_t { Standby, On, CoolingDown, WarmingUp };

/// Sends commands to one projector: a real connection, a simulation, or a decorator that logs,
/// limits or disturbs another channel. Call it from one thread at a time; `Connection`, `Inputs`
/// and `Power` may be called from any thread at any time.
class PROJECTOR_COMMON_EXPORT ProjectorChannel {
 public:
  virtual ~ProjectorChannel() = default;

  /// Sends a command; blocks until the projector has answered or the channel gives up. Never
  /// throws.
  virtual PjtReply Execute(const PjtCommand& command) = 0;

  /// Announces the reads that are about to be executed, in this order, so that a channel may send
  /// them all at once. This is only a hint: any command may follow. Replaces earlier announcements.
  virtual void Announce(std::span<const PjtCommand>) {}

  /// Sets a time-out for all following commands, if the channel supports it. The channel's own
  /// time-out still applies if it is shorter.
  virtual void GiveUpAfter(std::chrono::milliseconds) {}

  /// Abandons the command under way and the announced reads. An `Execute` that runs an event loop
  /// returns at once, unanswered, and the reply to its command is dropped. A channel that fails
  /// fast for a silent projector tries the next command again. Called on the thread of `Execute`,
  /// from inside its event loop or between two commands.
  virtual void Abandon() {}

  /// The state of the connection; `ConnectionState::None` for a channel without one. Any thread.
  virtual ConnectionState Connection() const { return ConnectionState::None; }

  /// The inputs that the projector itself has reported; nothing until then. Does not block: after
  /// the first call, a channel that can ask the projector for them does so when it is idle. Any
  /// thread.
  virtual std::optional<SourceList> Inputs() { return std::nullopt; }

  /// The power state that the projector reported last; nothing until then, or if it reports no more
  /// than the value of the running state. Does not block. Any thread.
  virtual std::optional<PowerState> Power() const { return std::nullopt; }

  /// Called when no command waits and the last one was answered: the channel may make one exchange
  /// of its own. Returns whether there is more to do. Called on the thread of `Execute`, between
  /// two commands. Never throws.
  virtual bool UseIdleTime() { return false; }

  /// Checks a connection that no command has used for the time `unused`: detects that the other
  /// end has closed it, and closes it after a long time without use. Returns whether there still
  /// is a connection. Does not block. Called on the thread of `Execute`, between two commands.
  /// Never throws.
  virtual bool TendConnection(std::chrono::milliseconds unused) {
    static_cast<void>(unused);
    return false;
  }
};

}  // namespace AdvancedControl
