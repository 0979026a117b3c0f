#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <utility>

#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"

/// Puts a bound on how long a command may take, whatever the channel behind it does.
///
/// The inner channel runs on a thread of this object's own. `Execute` waits for it; after a moment
/// it lets the calling thread's event loop run, user input included, so that windows go on working.
/// A command started from inside that loop is refused. A command without an answer in time yields
/// an unanswered refusal; from then on further commands fail at once, until the retry interval is
/// over and the outstanding command has come back. So a projector that does not answer costs one
/// time-out and not one per command. After a command that failed quickly the interval is short:
/// long enough for the rest of a page.
///
/// What is announced reaches the inner channel together with the next command, unless it is
/// abandoned before.
///
/// `GiveUpAfter` shortens the time-out; the inner channel is told with the next command.
///
/// A command that comes after `Abandon` is always tried: it first waits for the outstanding one to
/// come back, whose reply is dropped, for at most another time-out.
///
/// Destroying the object does not wait for an outstanding command: the inner channel lives on until
/// that command returns. Unless somebody else holds it, it ends on the thread that it ran on.
class PROJECTOR_COMMON_EXPORT BoundedChannel : public ProjectorChannel {
 public:
  struct Limits {
    std::chrono::milliseconds timeOut{2000};
    std::chrono::milliseconds retryAfter{3000};  ///< Counted from the unanswered command's end.
    /// Waited for before the event loop runs; less where many such waits would hold it up.
    std::chrono::milliseconds quickAnswer{5};
    /// Without a command, after one that was answered; then the inner channel may use the time.
    std::chrono::milliseconds idle{50};
    /// Without a command: from one look after the inner channel's connection to the next.
    std::chrono::milliseconds tend{1000};
  };

  explicit BoundedChannel(std::shared_ptr<ProjectorChannel> inner)
      : BoundedChannel(std::move(inner), {}) {}
  BoundedChannel(std::shared_ptr<ProjectorChannel> inner, const Limits& limits);
  ~BoundedChannel() override;
  BoundedChannel(const BoundedChannel&) = delete;
  BoundedChannel& operator=(const BoundedChannel&) = delete;

  PjtReply Execute(const PjtCommand& command) override;
  void Announce(std::span<const PjtCommand> reads) override;
  void GiveUpAfter(std::chrono::milliseconds time) override;
  void Abandon() override;
  ConnectionState Connection() const override;
  std::optional<SourceList> Inputs() override;
  std::optional<PowerState> Power() const override;

 private:
  struct State;
  template <typename Value>
  static Value Told(State& state, Value otherwise, auto ask);

  std::shared_ptr<State> state_;
};
