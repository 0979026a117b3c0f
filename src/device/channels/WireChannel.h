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

/// A projector at the other end of a line that carries the frames of docs/wire.md.
///
/// Connects when the first command is given, and again with the next command after the connection
/// was lost; where there is no noise, that command goes out right behind the hello. A projector
/// that has forgotten the hello is told again. A command whose reply does not come in time, or
/// during which the connection breaks, is unanswered and was carried out at most once; its reply is
/// nobody's if it comes later. All commands come from one thread, as those behind a
/// `BoundedChannel` do.
class PROJECTOR_COMMON_EXPORT WireChannel : public ProjectorChannel {
 public:
  struct Limits {
    std::chrono::milliseconds connect{1500};  ///< Until the projector has welcomed us.
    std::chrono::milliseconds answer{1500};
    std::chrono::milliseconds unused{20'000};  ///< Then the connection is closed.
  };

  ~WireChannel() override;
  WireChannel(const WireChannel&) = delete;
  WireChannel& operator=(const WireChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override;

  /// The reads go out in one burst when the first of them is executed. A reply counts for its own
  /// command in the order announced, as long as neither a change came in between nor a pause longer
  /// than the time for answering; that time counts anew for each.
  void Announce(std::span<const PjtCommand> reads) override;

  void GiveUpAfter(std::chrono::milliseconds time) override { longest_ = time; }

  bool TendConnection(std::chrono::milliseconds unused) override;

  ConnectionState Connection() const override { return state_; }

  /// Whether the projector has welcomed us on the last connection. It need not have answered a
  /// command.
  bool HasGreeted() const { return welcome_ && welcome_->version == Wire::kVersion; }

 protected:
  enum class Medium {
    Reliable,  ///< Bytes that are no frame show that no projector is there.
    Noisy,     ///< Such bytes are skipped. Everything is said one at a time.
  };

  WireChannel(Medium medium, const Limits& limits);

  /// A line that is open for reading and writing, or null; `problem` then says why.
  virtual std::unique_ptr<QIODevice> Open(const QDeadlineTimer& deadline,
                                          ConnectionState& problem) = 0;
  /// Whether a line from `Open` can still be used.
  virtual bool IsAlive(QIODevice& line) const = 0;

 private:
  /// A request on its way, and its reply once it is there.
  struct Sent {
    PjtCommand command;
    std::uint16_t sequence;
    std::optional<Wire::Reply> reply;
  };
  enum class Arrival { Bytes, Late, Broken, Strange };

  /// From now on, but not longer than the command may take.
  QDeadlineTimer Within(std::chrono::milliseconds time) const;
  bool Connect();
  /// Takes what came while nothing was asked: late replies, or the end of the connection. Whether
  /// that stands.
  bool TakeWhatCame();
  bool AwaitWelcome();
  std::optional<Wire::Reply> Ask(const PjtCommand& command);
  void Send(std::span<const PjtCommand> commands);
  /// How many more requests may be unanswered. The replies come in the order of the requests.
  std::size_t Room() const;
  bool Write(const QDeadlineTimer& deadline);
  /// Receives until `arrived`; false, and the connection is gone, if that does not come to pass.
  bool Await(const auto& arrived, const QDeadlineTimer& deadline);
  Arrival Receive(const QDeadlineTimer& deadline);
  void Take(const Wire::Frame& frame);
  bool Fail(ConnectionState problem);

  const Medium medium_;
  const Limits limits_;
  std::atomic<ConnectionState> state_ = ConnectionState::Unused;
  std::unique_ptr<QIODevice> line_;
  Wire::Decoder decoder_;
  std::uint16_t sequence_;      ///< Of the last frame made.
  std::uint16_t hello_ = 0;     ///< The sequence number of ours.
  std::uint16_t answered_ = 0;  ///< That of the last request answered, or of the hello before.
  std::optional<Wire::Welcome> welcome_;
  std::chrono::steady_clock::time_point welcomeBy_{};
  std::optional<std::chrono::milliseconds> longest_;  ///< For a command.
  std::chrono::steady_clock::time_point giveUpAt_ = std::chrono::steady_clock::time_point::max();
  bool isSent_ = false;                ///< The command under way, as far as that may be.
  std::string unsent_;                 ///< Goes out with the next write.
  std::vector<PjtCommand> announced_;  ///< Not sent yet.
  std::deque<Sent> sent_;
  std::chrono::steady_clock::time_point lastAsked_{};
};

}  // namespace AdvancedControl
