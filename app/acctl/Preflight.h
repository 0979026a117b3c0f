#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "app/acctl/Commands.h"
#include "app/acctl/Runner.h"

/// Says on standard error what nobody can have meant in the file of `diff` or `apply`, unless that
/// is to be skipped. The exit code: done, or wrong use.
int CheckFile(const Work& work, const std::vector<const ProjectorProfile*>& projectors);

/// Checks the words of a command for all its projectors, before anything is sent to any. The report
/// of each with which nothing more is to be done: of all of them where a word is wrong for one.
/// Of several projectors, those are asked, by `ask` and their numbers, whose model alone does not
/// tell what the words come to; a single one is when the command runs.
std::vector<std::optional<Report>> CheckWords(
    const Work& work, const std::vector<const ProjectorProfile*>& projectors, Meter& meter,
    const std::function<Report(int)>& ask);
/// What is left to be checked of a projector that is asked; changes nothing.
Report CheckAsked(const Work& work, ProjectorAccess& projector);

/// What a command has to know of the inputs that a projector tells itself.
InputsNeeded InputsNeededBy(const Work& work, const Target& target);
