#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <span>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/WireSession.h"

class QDeadlineTimer;
class QIODevice;

namespace AdvancedControl {

/// A projector at the other end of a line that carries the frames of docs/wire.md: drives a
/// `WireSession`, which says how it behaves, over a line. All commands come from one thread, as
/// those behind a `BoundedChannel` do.
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

  void Announce(std::span<const PjtCommand> reads) override { session_.Announce(reads); }

  void GiveUpAfter(std::chrono::milliseconds time) override { session_.GiveUpAfter(time); }

  bool TendConnection(std::chrono::milliseconds unused) override;

  ConnectionState Connection() const override { return state_; }

  /// Whether the projector has welcomed us on the last connection. It need not have answered a
  /// command.
  bool HasGreeted() const { return session_.HasGreeted(); }

 protected:
  using Medium = WireSession::Medium;

  WireChannel(Medium medium, const Limits& limits);

  /// A line that is open for reading and writing, or null; `problem` then says why.
  virtual std::unique_ptr<QIODevice> Open(const QDeadlineTimer& deadline,
                                          ConnectionState& problem) = 0;
  /// Whether a line from `Open` can still be used.
  virtual bool IsAlive(QIODevice& line) const = 0;

 private:
  enum class Arrival { Bytes, Late, Broken };

  /// Takes what came while nothing was asked: late replies, or the end of the connection. Whether
  /// that stands.
  bool TakeWhatCame();
  void Disconnect(ConnectionState problem);
  void Drive(const SessionStep& step);
  void Write(const SessionStep& step);
  Arrival Receive(const QDeadlineTimer& deadline);

  const std::chrono::milliseconds longestUnused_;
  WireSession session_;
  std::atomic<ConnectionState> state_ = ConnectionState::Unused;
  std::unique_ptr<QIODevice> line_;
};

}  // namespace AdvancedControl
