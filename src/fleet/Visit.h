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

/// What earlier visits have learned, so that it is not asked for again while the projector answers.
struct ProjectorMemory {
  std::optional<char> protocolClass{};
  std::vector<PjLinkInput> inputs{};  ///< The inputs that have been selected.
  std::bitset<kStatusItems> lacks{};  ///< What the projector does not have.
};

/// One visit to a projector: asks for its power state, and for the rest of its status unless it is
/// in standby. Like a session it has no socket and no clock: a driver performs each step that
/// `Next` returns and reports what happens, until the visit is finished. Then it closes the
/// connection.
class Visit {
 public:
  virtual ~Visit() = default;

  virtual SessionStep Next(SessionTime now) = 0;

  // Reports of what happened, at any time.

  virtual void Connected(SessionTime now) = 0;
  virtual void NotConnected(ConnectionState problem, SessionTime now) = 0;
  virtual void Received(std::string_view bytes, SessionTime now) = 0;
  virtual void Closed(SessionTime now) = 0;

  /// The state before the visit, updated with what the projector has reported so far.
  const LiveState& State() const { return state_; }
  const ProjectorMemory& Memory() const { return memory_; }
  /// Whether at least one answer came.
  bool HasAnswered() const { return firstAnswer_.has_value(); }
  /// From the first question to its answer.
  SessionTime::duration AnswerTime() const;
  /// The state of the connection, which is the reason if no answer came.
  virtual ConnectionState Connection() const = 0;

 protected:
  Visit(LiveState state, ProjectorMemory memory, std::shared_ptr<const ModelData> model)
      : state_(std::move(state)), memory_(std::move(memory)), model_(std::move(model)) {}

  // Record when a request was sent and when an answer came.
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
