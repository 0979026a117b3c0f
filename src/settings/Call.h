#pragma once

#include <cstdint>
#include <optional>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "device/CPjtInterface.h"
#include "settings/ModelCodes.h"

namespace AdvancedControl {

/// An operation in a row's data: a command without its value.
struct Call {
  PjtOperation operation{};
  std::uint16_t code = 0;    ///< Command code of a generic operation.
  std::int16_t address = 0;  ///< Source, point or channel of an addressed operation.
  PerModel<int> flag{0};     ///< Second argument of a flagged setter.
  bool anyResult = false;    ///< Any nonzero result is a success, whatever the family says.

  /// The command for a model, with `value` if the operation takes one.
  PROJECTOR_SETTINGS_EXPORT PjtCommand Command(int value = 0, int modelCode = 0) const;
};

/// The result of a call.
struct Answer {
  bool accepted = false;
  int value = 0;  ///< The value read or stepped to; meaningful only when accepted.
};

/// Sends a call, on the thread on which the connection's channel may be called. Operations without
/// a result count as accepted.
PROJECTOR_SETTINGS_EXPORT Answer Perform(CPjtInterface& projector, const Call& call, int value = 0,
                                         int modelCode = 0);

/// Reads a setting, on the same thread; nothing if the read fails.
PROJECTOR_SETTINGS_EXPORT std::optional<int> Read(CPjtInterface& projector, const Call& call);

// Functions with which tables describe their calls.

constexpr Call Get(std::uint16_t code) { return {PjtOperation::Get, code}; }
constexpr Call Set(std::uint16_t code) { return {PjtOperation::Set, code}; }
constexpr Call Inc(std::uint16_t code) { return {PjtOperation::Inc, code}; }
constexpr Call Dec(std::uint16_t code) { return {PjtOperation::Dec, code}; }
/// A named operation; `address` for those that take one.
constexpr Call Named(PjtOperation operation, int address = 0) {
  return {operation, 0, static_cast<std::int16_t>(address)};
}
/// A named setter with a flag.
constexpr Call Flagged(PjtOperation operation, PerModel<int> flag) {
  return {.operation = operation, .flag = flag};
}
/// The same call, but any nonzero result is a success.
constexpr Call AnyResult(Call call) {
  call.anyResult = true;
  return call;
}
/// The same call for an input source.
constexpr Call At(Call call, int source) {
  call.address = static_cast<std::int16_t>(source);
  return call;
}

}  // namespace AdvancedControl
