#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/acctl/Uses.h"
#include "app/acctl/Work.h"

/// One change that `set` was asked to make.
struct Change {
  const ModelSetting* setting;
  TypedValue typed;
  std::string word;              ///< The value as it was typed.
  std::optional<int> aim{};      ///< The device value; nothing until it is known.
  std::optional<int> present{};  ///< The value before all changes, if the check has read it.
  std::optional<int> source{};   ///< Its input source, if it has one.
};

/// Whether other settings may have other values once it is changed: an input source or a mode, or
/// the power state if the command waits for it.
bool SelectsMode(const Work& work, const ModelSetting& setting);

/// Whether only the projector knows the limits for steps.
bool IsUnbounded(const Target& target, const ModelSetting& setting);

/// The new value if the present one is `present`. Nothing if that value is not allowed; the report
/// then gets a problem with the exit code `wrong`.
std::optional<int> AimOf(const Change& change, const Work& work, const Target& target,
                         std::optional<int> present, int wrong, Report& report);

/// The checked changes. Problems that stop the command are added to the report, see `StopsChanges`.
/// Settings that the projector lacks are left out and reported, but do not stop the command.
std::vector<Change> CheckedChanges(const Work& work, ProjectorAccess& projector, Report& report);
bool StopsChanges(const Report& report);

/// Checks the words of `set` as far as that is possible without asking the projector, and adds
/// problems to the report. Returns whether the projector must be asked to check the rest.
bool NeedsAsking(const Work& work, const Target& target, Report& report);
