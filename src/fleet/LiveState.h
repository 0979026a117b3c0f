#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Namespace.h"
#include "device/ConnectionState.h"
#include "device/ProjectorChannel.h"
#include "device/protocol/PjLinkLine.h"
#include "fleet/FleetClock.h"

namespace AdvancedControl {

/// Whether a projector can be talked to.
enum class Reachability : std::uint8_t {
  NeverAsked,
  Answers,
  Silent,         ///< It did not answer; `LiveState::connection` says why.
  WrongPassword,  ///< It wants a password, and none or a wrong one is known.
  NotUnderstood,  ///< Something answers that does not speak the protocol.
};

using ProjectorPart = PjLink::Part;
using ProblemGrade = PjLink::Grade;
using PartProblems = PjLink::Grades;
using LampState = PjLink::Lamp;

struct PlayingSource {
  int number = 0;      ///< The device value.
  std::string name{};  ///< UTF-8; empty if neither the model nor the projector has a name for it.

  friend bool operator==(const PlayingSource&, const PlayingSource&) = default;
};

/// What is known of a projector now. A member without a value is unknown, or no longer known: a
/// projector that does not answer has no power state, and one in standby has no source.
struct LiveState {
  Reachability reachability = Reachability::NeverAsked;
  WallTime since{};           ///< When `reachability` became so.
  SessionTime steadySince{};  ///< The same, by the clock that stands still during a suspend.
  ConnectionState connection = ConnectionState::Unused;  ///< After the last visit.
  std::optional<WallTime> answered{};                    ///< Time of its last answer.
  std::chrono::microseconds answerTime{};  ///< Time until the first answer of that visit.

  std::optional<PowerState> power{};
  std::optional<PlayingSource> source{};
  std::optional<PartProblems> problems{};
  std::optional<int> error{};  ///< The device value of the status page's error row.
  std::optional<bool> blank{}, mute{}, freeze{};

  // These remain valid until the projector reports new values, except whether a lamp is lit.
  std::vector<LampState> lamps{};
  std::optional<int> filterHours{};
  std::optional<int> drift{};  ///< Settings that differ from what they should be.

  void ForgetLit() {
    for (LampState& lamp : lamps) lamp.isOn.reset();
  }
  /// Forgets what only a running projector reports.
  void ForgetPicture() { ForgetLit(), source = {}, blank = {}, mute = {}, freeze = {}; }
  /// Forgets everything that may have changed since the last answer.
  void ForgetMomentary() { ForgetPicture(), power = {}, problems = {}, error = {}; }
};

}  // namespace AdvancedControl
