#pragma once

#include "app/acctl/Conditions.h"
#include "app/acctl/Preflight.h"
#include "app/acctl/Work.h"

/// Prints the settings of the projectors that meet the conditions when they first answer, and then
/// every change. Ends when it is interrupted, nobody
/// reads the output any more, the time of --wait is over, or every projector has the value of
/// --until. Returns the exit code.
int Watch(const Work& work, const Projectors& projectors, ModelCache& models,
          const std::vector<Condition>& conditions);
