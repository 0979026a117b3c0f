#pragma once

#include <string_view>

#include "app/profiles/Table.h"

/// Writes to standard output without buffering. Returns false on failure, which is reported unless
/// nobody reads the output any more.
bool Print(std::string_view text);

/// Whether somebody can still read standard output.
bool HasReader();

/// Writes one line to standard error, after the program's name.
void Complain(std::string_view message);
