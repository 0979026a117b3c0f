#pragma once

#include <string>
#include <vector>

#include "app/acctl/Arguments.h"
#include "fleet/FleetProfile.h"

/// Reports wrong use; returns its exit code.
int FailWrongUse(const Arguments& arguments, const std::string& error);

/// Whether the command works with the projectors of a profile file.
bool NeedsProfiles(const Arguments& arguments);

/// Runs any command but those that only print a page. `words` is the command line without the
/// program's name. Returns the exit code.
int RunProgram(const Arguments& arguments, const std::vector<std::string>& words,
               const std::vector<FleetProfile>& profiles);
