#pragma once

#include <string>
#include <vector>

#include "app/acctl/Arguments.h"

/// Reads the arguments, without the program's name, after the user's configuration file and the
/// environment, which give defaults.
Arguments ParseArguments(const std::vector<std::string>& words);

/// Adds "KEY=VALUE", "KEY+=N" or "KEY-=N" to the words of `set`, as a key and a value. False if it
/// is none of these.
bool AddAssignment(const std::string& word, std::vector<std::string>& words);
