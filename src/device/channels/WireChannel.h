#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/WireFrame.h"

class QDeadlineTimer;
class QIODevice;

namespace AdvancedControl {

/// Base of channels to a projector over a line with the protocol of docs/wire.md.
///
/// Connects with the first command, and again with the next command after the connection is lost.
/// On a reliable line the command is sent right after the hello. If the projector has forgotten the
/// hello, it is repeated. A command whose reply does not come in time, or during which the
/// connection breaks, is unanswered; it was carried out at most once, and a later reply is dropped.
/// Call `Execute` and the other functions from one thread, as a `BoundedChannel` does; `Connection`
/// from any thread.
class PROJECTOR_COMMON_EXPORT WireChannel : public ProjectorChannel {
 public:
  struct Limits {
    std::chrono::milliseconds connect{1500};  ///< Until the projector's welcome.
    std::chrono::milliseconds answer{1500};
    std::chrono::milliseconds unused{
        20'000};  ///< Time without use after which the connection is closed.
  };

  ~WireChannel() override;
  WireChannel(const WireChannel&) = delete;
  WireChannel& operator=(const WireChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override;

  /// The reads are sent in one burst when the first of them is executed. Replies are used in the
  /// order announced, until a change comes in between, or a pause longer than the time for an
  /// answer. That time starts anew with each reply.
  void Announce(std::span<const PjtCommand> reads) override;

  void GiveUpAfter(std::chrono::milliseconds time) override { longest_ = time; }

  bool TendConnection(std::chrono::milliseconds unused) override;

  ConnectionState Connection() const override { return state_; }

  /// Whether the projector has welcomed us on the last connection. It need not have answered a
  /// command.
  bool HasGreeted() const { return welcome_ && welcome_->version == Wire::kVersion; }

 protected:
  enum class Medium {
    Reliable,  ///< Bytes that are not part of a frame mean that no projector is at the other end.
    Noisy,     ///< Such bytes are skipped. Requests are sent one at a time.
  };

  WireChannel(Medium medium, const Limits& limits);

  /// Opens the line for reading and writing. On failure returns null and sets `problem`.
  virtual std::unique_ptr<QIODevice> Open(const QDeadlineTimer& deadline,
                                          ConnectionState& problem) = 0;
  /// Whether a line from `Open` can still be used.
  virtual bool IsAlive(QIODevice& line) const = 0;

 private:
  /// A request that was sent, and its reply once it has arrived.
  struct Sent {
    PjtCommand command;
    std::uint16_t sequence;
    std::optional<Wire::Reply> reply;
  };
  enum class Arrival { Bytes, Late, Broken, Invalid };

  /// A deadline after `time`, but not after that of the command.
  QDeadlineTimer Within(std::chrono::milliseconds time) const;
  bool Connect();
  /// Reads what arrived without a request: late replies, or the end of the connection. Returns
  /// whether the connection still exists.
  bool ReceiveUnsolicited();
  bool AwaitWelcome();
  std::optional<Wire::Reply> Ask(const PjtCommand& command);
  void Send(std::span<const PjtCommand> commands);
  /// How many more requests may be sent without waiting for a reply. Replies come in the order of
  /// the requests.
  std::size_t FreeSlots() const;
  bool Write(const QDeadlineTimer& deadline);
  /// Receives until `arrived` returns true. Otherwise closes the connection and returns false.
  bool Await(const auto& arrived, const QDeadlineTimer& deadline);
  Arrival Receive(const QDeadlineTimer& deadline);
  void Take(const Wire::Frame& frame);
  bool Fail(ConnectionState problem);

  const Medium medium_;
  const Limits limits_;
  std::atomic<ConnectionState> state_ = ConnectionState::Unused;
  std::unique_ptr<QIODevice> line_;
  Wire::Decoder decoder_;
  std::uint16_t sequence_;   ///< Of the last frame sent.
  std::uint16_t hello_ = 0;  ///< Sequence number of our hello.
  std::uint16_t answered_ =
      0;  ///< Sequence number of the last answered request, or of the hello before that.
  std::optional<Wire::Welcome> welcome_;
  std::chrono::steady_clock::time_point welcomeBy_{};
  std::optional<std::chrono::milliseconds> longest_;  ///< Time-out of a command.
  std::chrono::steady_clock::time_point giveUpAt_ = std::chrono::steady_clock::time_point::max();
  bool isSent_ = false;                ///< Whether the present command may have been sent.
  std::string unsent_;                 ///< Sent with the next write.
  std::vector<PjtCommand> announced_;  ///< Not sent yet.
  std::deque<Sent> sent_;
  std::chrono::steady_clock::time_point lastAsked_{};
};

}  // namespace AdvancedControl
