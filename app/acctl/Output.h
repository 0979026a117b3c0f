#pragma once

#include <string_view>

#include "app/profiles/Table.h"

/// Writes to standard output at once. Nothing is left to do when it fails: the error is told,
/// unless it is that nobody reads any more, and false.
bool Print(std::string_view text);

/// One line on standard error, behind the program's name.
void Complain(std::string_view message);
