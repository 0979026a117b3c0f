#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "app/acctl/ModelCache.h"
#include "app/acctl/Parallel.h"
#include "app/acctl/Uses.h"
#include "app/acctl/Work.h"

using Projectors = std::vector<const FleetProfile*>;

/// Finds mistakes in the files of `diff` or `apply`, unless the user has asked to skip them.
std::vector<std::string> FileMistakes(const Work& work, const Projectors& projectors,
                                      ModelCache& models);

/// Asks these projectors and hands their reports over, in this order.
using AskEach = std::function<void(const std::vector<int>& numbers,
                                   const std::function<void(int number, Report report)>& handOver)>;

/// Checks the words of a command for all its projectors, before anything is sent to any of them.
/// The result has a report for each projector that needs no further work: for all of them if a word
/// is wrong for one, or if none of them has a setting. Where the check needs answers of
/// projectors, `askEach` is called with their numbers; but if there is only one projector, it is
/// asked when the command runs.
std::vector<std::optional<Report>> CheckWords(const Work& work, const Projectors& projectors,
                                              ModelCache& models, const AskEach& askEach);
/// The part of the check that asks the projector; changes nothing.
Report CheckByAsking(const Work& work, ProjectorAccess& projector);

/// What a command must know about the inputs of a projector that reports them itself.
InputsNeeded InputsNeededBy(const Work& work, const Target& target);
