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

/// Whether only the projector knows how far it can be stepped.
bool IsUnbounded(const Target& target, const ModelSetting& setting);

/// The value that a change results in, from the value `present`. Nothing, and a problem with
/// `wrong` as exit code, if it cannot be reached.
std::optional<int> AimOf(const Change& change, const Work& work, const Target& target,
                         std::optional<int> present, int wrong, Report& report);

/// The changes, checked: problems that stop the command are in the report, see `StopsChanges`.
/// Settings that the projector lacks are left out, with a problem that does not stop it.
std::vector<Change> CheckedChanges(const Work& work, ProjectorAccess& projector, Report& report);
bool StopsChanges(const Report& report);

/// Adds problems with the words of `set` that do not depend on the projector's answers to the
/// report. Whether the projector must be asked before it is known that all words can be followed.
bool NeedsAsking(const Work& work, const Target& target, Report& report);
