#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Namespace.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/SessionStep.h"
#include "device/protocol/WireFrame.h"

namespace AdvancedControl {

/// The requests of a `WireSession`: gives them their numbers, sends announced reads ahead in one
/// burst, and keeps the replies until their commands are begun. Use from one thread at a time.
class WireRequests {
 public:
  /// The first frame has the number after `sequence`.
  explicit WireRequests(std::uint16_t sequence) : sequence_(sequence), answered_(sequence) {}

  /// The number for the hello of a new connection, which no request of an earlier one has.
  std::uint16_t NumberHello();

  /// Replaces all reads announced before. Commands that are not reads are ignored.
  void Announce(std::span<const PjtCommand> reads);
  /// Forgets the announced reads, the requests that were sent, and their replies.
  void Forget();
  /// Forgets the requests that were sent, and their replies.
  void ForgetSent() { sent_.clear(); }
  /// The same, if no reply was taken within `time`: replies received after a pause may be outdated.
  void ForgetOld(std::chrono::milliseconds time, SessionTime now);

  /// Whether the command has been sent ahead. Drops the reads before it, which were skipped, so
  /// that `TakeReply` returns its reply.
  bool SkipTo(const PjtCommand& command);
  /// Appends the request for the command to `bytes`, and those for the reads announced after it.
  void Send(const PjtCommand& command, std::string& bytes);

  /// Keeps the reply in a frame. Drops frames that belong to no request, and second replies.
  void Receive(const Wire::Frame& frame);
  /// The reply to the first request that was sent; nothing if it has not arrived yet.
  std::optional<Wire::Reply> TakeReply(SessionTime now);

 private:
  /// A request that was sent, and its reply once it has arrived.
  struct Sent {
    PjtCommand command;
    std::uint16_t sequence;
    std::optional<Wire::Reply> reply;
  };

  /// How many requests may be sent without waiting for a reply. Replies come in the order of the
  /// requests. At least one, because every command waits for its own reply, and what was sent with
  /// a command is behind it.
  std::size_t FreeSlots() const;
  Sent Make(const PjtCommand& command, std::string& bytes);

  std::uint16_t sequence_;  ///< Of the last frame made.
  std::uint16_t answered_;  ///< Of the last answered request, or of the hello before that.
  std::vector<PjtCommand> announced_;  ///< Not sent yet.
  std::vector<Sent> sent_;             ///< In the order in which their commands are begun.
  SessionTime lastReply_{};            ///< When `TakeReply` returned one.
};

}  // namespace AdvancedControl
