#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// The protocol classes that have a command.
enum class PjLinkClass : std::uint8_t {
  First,
  Second,
  Either,  ///< Both, with more values in the second.
};

/// One operation in PJLink.
struct PjLinkMapping {
  PjtOperation operation;
  std::uint16_t code;
  std::string_view command;
  PjLinkClass protocolClass;
  /// The request's parameter for a value; nothing if PJLink does not have the value.
  std::optional<std::string> (*parameter)(int value);
  /// Converts the reply to the question of the same command to the value of a read, or to the value
  /// that a change has led to. Null if the command has no question.
  std::optional<int> (*value)(std::string_view) = nullptr;

  /// The mapping of a command, or null if PJLink does not have it.
  static const PjLinkMapping* Find(const PjtCommand& command);
};

/// The value that the mapping's `value` returns once a change has taken effect.
int PjLinkTarget(const PjtCommand& change);

}  // namespace AdvancedControl
