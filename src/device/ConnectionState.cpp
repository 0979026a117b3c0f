#include "device/ConnectionState.h"

namespace AdvancedControl {

std::string_view ConnectionStateText(ConnectionState state) {
  switch (state) {  // unreachable: there is a case for every state
    case ConnectionState::None:
      return "no connection";
    case ConnectionState::Unused:
      return "not connected";
    case ConnectionState::Connecting:
      return "connecting";
    case ConnectionState::Connected:
      return "connected";
    case ConnectionState::WrongParameters:
      return "wrong connection parameters";
    case ConnectionState::NameUnknown:
      return "unknown host name";
    case ConnectionState::NotReachable:
      return "not reachable";
    case ConnectionState::NoAnswer:
      return "no answer";
    case ConnectionState::Lost:
      return "connection lost";
    case ConnectionState::NotUnderstood:
      return "answers are not understood";
    case ConnectionState::OtherVersion:
      return "another version of the protocol";
    case ConnectionState::PasswordRequired:
      return "password missing or wrong";
  }
  return "no connection";
}

}  // namespace AdvancedControl
