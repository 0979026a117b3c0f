#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/acctl/Arguments.h"

/// The password that an option, a file or the environment gives. Empty if there is none. `error`
/// becomes one line, or empty on success.
std::string GivenPassword(const Arguments& arguments, std::string& error);

/// Asks for the password at the terminal, without showing it. Nothing without a terminal, or if
/// there is no input or it is interrupted.
std::optional<std::string> AskForPassword(const std::string& projector,
                                          const std::function<bool()>& isInterrupted);
