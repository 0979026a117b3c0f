#pragma once

#include <chrono>
#include <optional>

#include "Namespace.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/SessionStep.h"
#include "device/protocol/WireFrame.h"

namespace AdvancedControl {

/// The present command of a `WireSession`: how far it got, when to give it up, and then its reply.
/// Use from one thread at a time.
class WireCommand {
 public:
  /// Sets the time-out of further commands.
  void GiveUpAfter(std::chrono::milliseconds time) { longest_ = time; }
  void Begin(const PjtCommand& command, SessionTime now);
  const PjtCommand& Command() const { return command_; }

  /// A deadline after `time`, but not after that of the command.
  SessionTime Within(std::chrono::milliseconds time, SessionTime now) const;

  /// From now on the projector may have carried it out.
  void MarkSent() { isSent_ = true; }
  /// The projector has forgotten the hello and carried nothing out. Whether to repeat hello and
  /// command: only once.
  bool RepeatForgotten();

  void Answer(const Wire::Reply& reply);
  /// The command stays unanswered. The connection's `problem` may tell that it was not carried out.
  void Fail(ConnectionState problem);
  const PjtReply& Reply() const { return reply_; }

 private:
  std::optional<std::chrono::milliseconds> longest_;
  SessionTime giveUpAt_ = SessionTime::max();
  PjtCommand command_{PjtOperation::Get};
  bool isSent_ = false;
  bool wasForgotten_ = false;
  PjtReply reply_;
};

}  // namespace AdvancedControl
