#pragma once

#include <optional>
#include <string>

#include "app/acctl/CommandTable.h"

/// The text of `--help`, for one command or for the program.
std::string HelpText(std::optional<Command> topic);

/// The manual page in the form that man reads.
std::string ManPage(std::optional<Command> topic);
