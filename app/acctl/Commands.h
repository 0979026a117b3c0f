#pragma once

#include "app/acctl/Report.h"
#include "app/acctl/Work.h"
#include "app/profiles/ProjectorAccess.h"

// What a command does with one projector, while others are waited for.

Report RunSettings(const Work& work, ProjectorAccess& projector);
Report RunGet(const Work& work, ProjectorAccess& projector);
Report RunSet(const Work& work, ProjectorAccess& projector);
Report RunReset(const Work& work, ProjectorAccess& projector);
Report RunStatus(const Work& work, ProjectorAccess& projector);
Report RunSave(const Work& work, ProjectorAccess& projector);
Report RunDiff(const Work& work, ProjectorAccess& projector);
Report RunApply(const Work& work, ProjectorAccess& projector);
