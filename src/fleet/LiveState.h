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
  NotUnderstood,  ///< What answers there is no projector of this protocol.
};

using ProjectorPart = PjLink::Part;
using ProblemGrade = PjLink::Grade;
using PartProblems = PjLink::Grades;
using LampState = PjLink::Lamp;

struct PlayingSource {
  int number = 0;      ///< The device value.
  std::string name{};  ///< UTF-8; empty where neither model nor projector name it.

  friend bool operator==(const PlayingSource&, const PlayingSource&) = default;
};

/// What is known of a projector now. What it has not told, or no longer tells, is nothing: one that
/// does not answer has no power state, and one in standby no source.
struct LiveState {
  Reachability reachability = Reachability::NeverAsked;
  WallTime since{};                                      ///< When `reachability` became so.
  ConnectionState connection = ConnectionState::Unused;  ///< After the last visit.
  std::optional<WallTime> answered{};                    ///< When it answered last.
  std::chrono::microseconds answerTime{};                ///< How long the first answer then took.

  std::optional<PowerState> power{};
  std::optional<PlayingSource> source{};
  std::optional<PartProblems> problems{};
  std::optional<int> error{};  ///< The device value of the status page's error row.
  std::optional<bool> blank{}, mute{}, freeze{};

  // These hold until they are told anew.
  std::vector<LampState> lamps{};
  std::optional<int> filterHours{};
  std::optional<int> drift{};  ///< Settings that differ from what they should be.

  /// Forgets what only a running projector tells.
  void ForgetPicture() { source = {}, blank = {}, mute = {}, freeze = {}; }
  /// Forgets all that may be otherwise by now.
  void ForgetMomentary() { ForgetPicture(), power = {}, problems = {}, error = {}; }
};

}  // namespace AdvancedControl
