#pragma once

#include <string>

#include "app/acctl/Preflight.h"
#include "app/acctl/UndoRuns.h"
#include "app/acctl/Work.h"

// What a command reads and writes besides the projectors. Each function returns one line that says
// what is wrong, or an empty text.

/// Reads the file or folder of `diff` or `apply`. With a folder, projectors without a file of their
/// own are removed; `left` gets a line for each removed projector that the user named, and for each
/// file without a projector.
std::string LoadSettingsFiles(const Arguments& arguments, Projectors& projectors,
                              const std::vector<FleetProfile>& profiles, SettingsFiles& files,
                              std::vector<Problem>& left);

/// Decides the file in which each projector is saved: the given one, or one in the folder that is
/// named like the projector. A file that is not one of settings is only replaced with --force.
std::string ChooseSavePaths(const Arguments& arguments, const Projectors& projectors,
                            std::map<std::string, std::string>& paths);

/// The name of the last run.
inline constexpr const char* kLastRun = "last";

/// The run that `undo` undoes: the named one, or else the last one that was not undone and is not
/// itself an undo.
std::string ChooseRun(const Arguments& arguments, RecordedRun& run);

/// Uses the values that a run replaced as the files of its projectors; `left` gets a line for each
/// projector that no profile has any more.
void TakeRun(const RecordedRun& run, const std::vector<FleetProfile>& profiles,
             Projectors& projectors, SettingsFiles& files, std::vector<Problem>& left);

/// What undo files know a projector by.
UndoId UndoIdOf(const FleetProfile& profile);

/// Leaves out projectors that the run may not have changed, because it changed one of their name
/// at another address. `left` gets a line for each.
void LeaveOutOthers(const RecordedRun& run, Projectors& projectors, std::vector<Problem>& left);

/// The folder for undo files.
QString UndoFolderOf(const Arguments& arguments);
