#pragma once

#include <optional>
#include <vector>

#include "app/acctl/Uses.h"
#include "app/acctl/Values.h"
#include "app/acctl/Work.h"

/// True until the work is interrupted or the projector is gone.
Progress ProgressOf(const Work& work, const ProjectorAccess& projector);

/// Asks for the power state; nothing if the projector does not report it.
std::optional<PowerState> AskPower(ProjectorAccess& projector);

/// Whether the projector cannot report or do something only because it is in standby or changes its
/// power state. False if it does not report that state.
bool IsResting(std::optional<PowerState> power);
/// The code of this problem.
const char* RestCodeOf(PowerState power);

/// Reports settings that could not be read although the projector answers. In standby they become a
/// single note, which is no error.
void ReportUnread(const std::vector<std::string>& keys, std::optional<PowerState> power,
                  const std::string& what, Report& report);

/// Reads settings into the report, until the projector is gone. A setting that the projector does
/// not offer is an error if its key was given, and a note if a pattern includes it.
void ReadInto(const Work& work, ProjectorAccess& projector,
              const std::vector<const ModelSetting*>& settings, Report& report);
