#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Namespace.h"
#include "device/ModelData.h"
#include "fleet/FleetClock.h"
#include "fleet/FleetEvents.h"
#include "fleet/LiveState.h"
#include "fleet/StateChange.h"

namespace AdvancedControl {

/// What is known of each projector of a fleet, and what has changed. Its functions may be called
/// from any thread, and never wait for the network.
class FleetStates {
 public:
  /// Most changes that one call returns, so that its caller is not blocked for long.
  static constexpr std::size_t kMostTaken = 1000;
  /// Changes that are kept until somebody takes them.
  static constexpr std::size_t kMostKept = 100'000;

  /// Keeps the last `history` changes of each projector. `clock` outlives it.
  FleetStates(const FleetClock& clock, std::size_t history) : clock_(clock), history_(history) {}

  /// Adds a projector without a known state, or changes the model of a known one. The model may be
  /// null.
  void Add(const std::string& id, std::shared_ptr<const ModelData> model);
  void Remove(const std::string& id);

  // The functions below do nothing, and return nothing, for any other projector.

  /// Calls `change` with the state, and records what it has changed.
  void Change(const std::string& id, const std::function<void(LiveState&)>& change);
  /// See `Fleet::Learn`.
  void Learn(const std::string& id, const PjtCommand& command, const PjtReply& reply,
             std::optional<PowerState> power);

  std::optional<LiveState> State(const std::string& id) const;
  std::vector<std::pair<std::string, LiveState>> States() const;
  std::vector<StateChange> History(const std::string& id) const;

  /// The oldest changes that were not taken yet, up to `kMostTaken`.
  FleetChanges TakeChanges();
  /// Whether to notify the owner of changes; true once after each `TakeChanges`.
  bool MustNotify();

 private:
  struct Known {
    LiveState state{};
    std::vector<StateChange> history{};
    std::shared_ptr<const ModelData> model{};
  };

  /// Under the mutex.
  void Apply(const std::string& id, Known& known, LiveState state);

  const FleetClock& clock_;
  const std::size_t history_;
  mutable std::mutex mutex_;
  // Under the mutex.
  std::unordered_map<std::string, Known> known_;
  std::deque<FleetChange> changes_;
  bool areMissing_ = false;
  bool hasNotified_ = false;
};

}  // namespace AdvancedControl
