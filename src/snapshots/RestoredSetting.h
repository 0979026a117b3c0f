#pragma once

#include <cstdint>
#include <optional>

#include "Namespace.h"
#include "snapshots/Snapshot.h"

namespace AdvancedControl {

/// The result for one saved setting.
enum class Outcome : std::uint8_t {
  NotReached,  ///< Nothing was sent for it: the work ended before its turn.
  AlreadySo,   ///< The projector already had this value.
  Differs,     ///< It has another value, and nothing was sent yet.
  Changed,     ///< Sent and confirmed by reading it back.
  Pending,     ///< Sent and accepted, but not in effect yet when read back.
  Refused,     ///< Sent but not changed, or the projector refuses to be read.
  Busy,  ///< Refused because the projector is switching, warming up, cooling down or in standby.
  Unconfirmed,  ///< It was sent, or another change may have affected it; its value is unknown.
  Unknown,      ///< The model does not have the setting.
  NotOffered,   ///< The model has it, but the projector says that it does not.
  NotSettable,  ///< The model has it, but it cannot be restored.
  NotAllowed,   ///< The model does not allow this value, or not for this source.
};

struct RestoredSetting {
  SavedSetting saved;
  const ModelSetting* setting = nullptr;  ///< Null if the model does not have it.
  bool isBeforehand = false;
  Outcome outcome = Outcome::NotReached;
  std::optional<int> first{};   ///< The first value read, if any.
  std::optional<int> before{};  ///< The last value read before it was sent.
  std::optional<int> now{};     ///< The value read back; nothing while unconfirmed.
  int turn = 0;   ///< Its position in the order of sending, from 1; 0 if it is not sent.
  int asOf = -1;  ///< How many settings had been sent when it was last read.
  /// The outcome if another value is read back after it was sent.
  Outcome otherwise = Outcome::Refused;

  /// Whether it was sent and the projector may still carry it out later.
  bool IsOpen() const { return otherwise == Outcome::Pending || otherwise == Outcome::Unconfirmed; }
};

}  // namespace AdvancedControl
