#pragma once

#include <bitset>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/SessionStep.h"
#include "fleet/FleetPolicy.h"
#include "fleet/FleetTarget.h"
#include "fleet/StatusItems.h"

namespace AdvancedControl {

/// What a visit learned that the next one need not ask for again, as long as the projector answers.
struct ProjectorMemory {
  std::optional<char> protocolClass{};
  std::vector<PjLinkInput> inputs{};  ///< Those that played.
  std::bitset<kStatusItems> lacks{};  ///< What it does not have.
};

/// One visit to a projector: asks for its power state, and for the rest of its status if it does
/// not sleep. Like a session it has neither a socket nor a clock: a driver does each step and
/// passes on what happens, until the visit is finished, and then closes the connection.
class Visit {
 public:
  virtual ~Visit() = default;

  virtual SessionStep Next(SessionTime now) = 0;

  // What happens, at any time.

  virtual void Connected(SessionTime now) = 0;
  virtual void NotConnected(ConnectionState problem, SessionTime now) = 0;
  virtual void Received(std::string_view bytes, SessionTime now) = 0;
  virtual void Closed(SessionTime now) = 0;

  /// What the projector told so far: the state before with all that was told since.
  const LiveState& State() const { return state_; }
  const ProjectorMemory& Memory() const { return memory_; }
  /// Whether at least one answer came.
  bool HasAnswered() const { return firstAnswer_.has_value(); }
  /// From the first question to its answer.
  SessionTime::duration AnswerTime() const;
  /// What became of the connection, where no answer came.
  virtual ConnectionState Connection() const = 0;

 protected:
  Visit(LiveState state, ProjectorMemory memory, std::shared_ptr<const ModelData> model)
      : state_(std::move(state)), memory_(std::move(memory)), model_(std::move(model)) {}

  /// Tells when something was sent, and when the first answer was there.
  void TakeSending(SessionTime now);
  void TakeAnswering(SessionTime now);
  bool Lacks(StatusItem item) const { return memory_.lacks[static_cast<std::size_t>(item)]; }
  void SetLacks(StatusItem item, bool lacks) {
    memory_.lacks[static_cast<std::size_t>(item)] = lacks;
  }
  void Take(StatusItem item, int value) { TakeStatus(state_, item, value, model_.get()); }

  LiveState state_;
  ProjectorMemory memory_;
  const std::shared_ptr<const ModelData> model_;

 private:
  std::optional<SessionTime> sent_;
  std::optional<SessionTime> firstAnswer_;
};

}  // namespace AdvancedControl
