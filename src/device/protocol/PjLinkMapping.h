#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "device/ProjectorChannel.h"

namespace AdvancedControl {

/// The classes of the protocol that have a command.
enum class PjLinkClass : std::uint8_t {
  First,
  Second,
  Either,  ///< In both, with more values in the second.
};

/// One operation as PJLink has it.
struct PjLinkMapping {
  PjtOperation operation;
  std::uint16_t code;
  std::string_view command;
  PjLinkClass protocolClass;
  /// The request's parameter for a value; nothing when there is no such value.
  std::optional<std::string> (*parameter)(int value);
  /// What the reply to the question for the same command says: the value of a read, and what a
  /// change led to. Null where the command has no question.
  std::optional<int> (*value)(std::string_view) = nullptr;

  /// How the operation is said in PJLink, or null.
  static const PjLinkMapping* Find(const PjtCommand& command);
};

/// The value that a change leads to, as its mapping's `value` says it.
int PjLinkAim(const PjtCommand& change);

}  // namespace AdvancedControl
