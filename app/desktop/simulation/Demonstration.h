#pragma once

#include <vector>

#include "app/desktop/projectors/ProjectorSession.h"

/// Brings simulated projectors into different states, so that the list has something of everything:
/// most are on, some are off, one warms up, one has a hot lamp, one does not answer. The states
/// depend on the positions alone.
void ShowDemonstration(const std::vector<std::shared_ptr<ProjectorSession>>& sessions);
