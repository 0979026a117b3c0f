#pragma once

#include <string>
#include <vector>

#include "app/acctl/Commands.h"

/// What nobody can have meant in the command's file, for a projector of `model`: one line each,
/// with the file, the line in it and the key. Only settings that take part are looked at. What
/// `model` does not have, or does not take from a file of another model, is none of it.
///
/// `own` is the model that the file is of, or null where that is not known.
std::vector<std::string> MistakesIn(const Work& work, const ModelSettings& model,
                                    const ModelSettings* own);
