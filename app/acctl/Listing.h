#pragma once

#include "app/acctl/Preflight.h"
#include "app/acctl/Printer.h"
#include "app/acctl/Work.h"

// The commands that print what the profile file says.

void List(const Work& work, const Projectors& projectors, Printer& printer);

// The exit code is returned.
int ListModels(const Work& work, ModelCache& models);
int Explain(const Work& work, ModelCache& models);
