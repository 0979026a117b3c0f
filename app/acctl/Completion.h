#pragma once

#include <string>
#include <vector>

#include "app/acctl/Preflight.h"

/// The words that may follow on a command line, one a line. `words` are those behind the program's
/// name; the last one is the one that is being typed. A line "<files>" or "<folders>" stands for
/// the names of files or folders.
std::string Completions(const std::vector<std::string>& words,
                        const std::vector<FleetProfile>& profiles, ModelCache& models,
                        const ValueTexts& texts);
