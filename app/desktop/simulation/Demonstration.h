#pragma once

#include <vector>

#include "app/desktop/projectors/ProjectorSession.h"

/// Gives simulated projectors different states for a demonstration: most are on, some are off, one
/// is warming up, one has a lamp that is too hot, one does not answer. The states depend only on
/// the positions.
void ShowDemonstration(const std::vector<std::shared_ptr<ProjectorSession>>& sessions);
