#pragma once

#include <string>
#include <vector>

#include "app/acctl/Commands.h"

/// Whose names of the inputs are: a projector's own may have changed since the file was saved.
enum class InputNames { OfProfile, OfProjector };

/// What nobody can have meant in the command's file, for a projector of `model`: one line each,
/// with the file, the line in it and the key. Only settings that take part are looked at. What
/// `model` does not have, or does not take from a file of another model, is none of it.
std::vector<std::string> MistakesIn(const Work& work, const ModelSettings& model,
                                    InputNames inputs);

/// The same of a projector that tells its inputs itself, once it has; any other was checked before.
Report CheckFile(const Work& work, const ProjectorAccess& projector);
