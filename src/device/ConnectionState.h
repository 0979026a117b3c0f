#pragma once

#include <cstdint>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"

namespace AdvancedControl {

/// The state of a connection to a projector.
enum class ConnectionState : std::uint8_t {
  None,              ///< There is no connection.
  Unused,            ///< Not connected yet, or closed while it was not in use.
  Connecting,        ///< For the first time or again.
  Connected,         ///< The last command was answered.
  WrongParameters,   ///< The connection parameters are invalid.
  NameUnknown,       ///< The host name could not be resolved.
  NotReachable,      ///< Nothing listens at the address, or the serial port does not exist.
  NoAnswer,          ///< Connected, but no answer came in time.
  Lost,              ///< The connection broke.
  NotUnderstood,     ///< The other end does not speak the protocol.
  OtherVersion,      ///< The projector supports no protocol version that we support.
  PasswordRequired,  ///< The projector requires a password; none or a wrong one was given.
};

/// The state in a few English words, for programs without a catalog. Any thread.
PROJECTOR_COMMON_EXPORT std::string_view ConnectionStateText(ConnectionState state);

}  // namespace AdvancedControl
