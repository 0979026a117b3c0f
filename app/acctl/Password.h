#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/acctl/Arguments.h"

/// The password that comes with the call: as an argument, in a file, in the environment. Empty for
/// none; `error` is one line, or empty when all is well.
std::string GivenPassword(const Arguments& arguments, std::string& error);

/// Asks whoever sits at the terminal, without showing what is typed. Nothing where nobody does, and
/// when it is given up or interrupted.
std::optional<std::string> AskForPassword(const std::string& projector,
                                          const std::function<bool()>& isInterrupted);
