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

/// Base of channels to a projector over a line with the protocol of docs/wire.md. Drives a
/// `WireSession`, which describes how it behaves. Call `Execute` and the other functions from one
/// thread, as a `BoundedChannel` does; `Connection` from any thread.
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

  /// Opens the line for reading and writing. On failure returns null and sets `problem`.
  virtual std::unique_ptr<QIODevice> Open(const QDeadlineTimer& deadline,
                                          ConnectionState& problem) = 0;
  /// Whether a line from `Open` can still be used.
  virtual bool IsAlive(QIODevice& line) const = 0;

 private:
  enum class Arrival { Bytes, Late, Broken };

  /// Reads what arrived without a request: late replies, or the end of the connection. Returns
  /// whether the connection still exists.
  bool ReceiveUnsolicited();
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
