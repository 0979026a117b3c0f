#pragma once

#include <optional>
#include <string_view>

#include "Namespace.h"
#include "device/protocol/PjLinkMapping.h"

namespace AdvancedControl {

/// What is known of a projector's protocol class. A class from an earlier session is used until the
/// projector contradicts it: another projector may be at the address now. Use from one thread at a
/// time.
class PjLinkKnownClass {
 public:
  /// '1' or '2', once it is known.
  std::optional<char> Value() const { return class_; }
  /// Uses a class from an earlier session.
  void Remember(char protocolClass);
  /// Takes the answer to the question for the class, which may be an error.
  void Take(std::string_view parameter);
  /// A command stayed without an answer. Forgets the class if it may be another projector's: one
  /// from an earlier session if the command was sent, and one from this session if the projector
  /// could not be reached.
  void HandleSilence(bool wasSent);
  /// The projector does not know a command. Whether the class was from an earlier session and is
  /// therefore forgotten.
  bool HandleUnknownCommand();

  /// Whether the class must be known for a command that the projector has in `needed`.
  bool IsMissingFor(PjLinkClass needed) const { return needed != PjLinkClass::First && !class_; }
  /// Whether the projector cannot have such a command.
  bool RulesOut(PjLinkClass needed) const { return needed == PjLinkClass::Second && class_ == '1'; }
  /// The class to send with such a command.
  char ForRequest(PjLinkClass needed) const;

 private:
  std::optional<char> class_;
  bool isRemembered_ = false;  ///< From an earlier session, and not confirmed in this one.
};

}  // namespace AdvancedControl
