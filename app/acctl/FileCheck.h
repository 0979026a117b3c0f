#pragma once

#include <string>
#include <vector>

#include "app/acctl/Report.h"
#include "app/acctl/Work.h"
#include "app/profiles/ProjectorAccess.h"

/// Where the names of inputs come from. Names that the projector itself reports may have changed
/// since the file was saved.
enum class InputNames { OfProfile, OfProjector };

/// Mistakes in a file of settings for a projector of `model`, one line each with file, line and
/// key. Only settings that take part are checked. It is no mistake if `model` lacks a setting of a
/// file of another projector, or does not allow its value.
std::vector<std::string> MistakesIn(const Work& work, const SettingsFileContents& contents,
                                    const std::string& projector, const ModelSettings& model,
                                    InputNames inputs);

/// Checks the file for a projector that reports its inputs itself; for any other this was done
/// before.
Report CheckFile(const Work& work, const ProjectorAccess& projector);
