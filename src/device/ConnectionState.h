#pragma once

#include <cstdint>
#include <string_view>

#include "ProjectorCommonExport.h"

/// How a connection to a projector stands.
enum class ConnectionState : std::uint8_t {
  None,              ///< There is no connection that could have a state.
  Unused,            ///< None was needed yet, or it ended while nobody used it.
  Connecting,        ///< On its way, for the first time or again.
  Connected,         ///< The last command was answered.
  WrongParameters,   ///< The connection parameters name nothing that could be connected to.
  NameUnknown,       ///< The address is a name that nobody knows.
  NotReachable,      ///< Nobody listens there, or there is no such serial port.
  NoAnswer,          ///< Connected, but no answer came in time.
  Lost,              ///< The connection broke.
  NotUnderstood,     ///< What came is not what a projector says.
  OtherVersion,      ///< The projector speaks no version of the wire that we do.
  PasswordRequired,  ///< The projector wants a password, and none or a wrong one was given.
};

/// The state in a few English words, for programs without a catalog.
PROJECTOR_COMMON_EXPORT std::string_view ConnectionStateText(ConnectionState state);
