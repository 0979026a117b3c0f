#pragma once

#include "app/acctl/Preflight.h"
#include "app/acctl/Work.h"

// The commands that only look into the profile file. Each returns the exit code.

int List(const Work& work, const Projectors& projectors);
int ListModels(const Work& work, ModelCache& models);
int Explain(const Work& work, ModelCache& models);
