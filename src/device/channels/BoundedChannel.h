#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <utility>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// Limits how long a command may take, whatever the inner channel does.
///
/// The inner channel runs on a thread owned by this object. `Execute` waits for it; after a moment
/// it runs the calling thread's event loop, user input included, so that windows keep working. A
/// command started from inside that loop is refused. If no answer comes in time, the reply is an
/// unanswered refusal. Further commands then fail at once until the retry interval is over and the
/// outstanding command has returned. A silent projector thus costs one time-out, not one per
/// command. After a command that failed quickly the interval is short: just long enough to skip
/// the rest of a page.
///
/// Announced reads reach the inner channel together with the next command, unless they are
/// abandoned first.
///
/// `GiveUpAfter` shortens the time-out; it is passed to the inner channel with the next command.
///
/// A command that follows `Abandon` is always tried. It first waits for the outstanding command to
/// return, for at most another time-out; the reply to that one is dropped.
///
/// The destructor does not wait for an outstanding command: the inner channel lives until that
/// command returns. Unless it is shared, it is then destroyed on the thread that it ran on.
///
/// Call `Execute`, `Announce`, `GiveUpAfter` and `Abandon` from one thread, usually the
/// user-interface thread; `Connection`, `Inputs` and `Power` from any thread.
class PROJECTOR_COMMON_EXPORT BoundedChannel : public ProjectorChannel {
 public:
  struct Limits {
    std::chrono::milliseconds timeOut{2000};
    std::chrono::milliseconds retryAfter{3000};  ///< Counted from the unanswered command's end.
    /// How long a command waits before it runs the event loop; shortened if many such waits would
    /// hold the loop up.
    std::chrono::milliseconds quickAnswer{5};
    /// Pause after an answered command until the inner channel may use the idle time.
    std::chrono::milliseconds idle{50};
    /// Interval at which `TendConnection` is called while there is no command.
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
  static Value AskInner(State& state, Value otherwise, auto ask);

  std::shared_ptr<State> state_;
};

}  // namespace AdvancedControl
