#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/acctl/Arguments.h"
#include "app/acctl/Report.h"
#include "app/acctl/Uses.h"
#include "app/profiles/ProjectorAccess.h"
#include "app/profiles/SettingsFile.h"

/// What all projectors of a command share.
struct Work {
  const Arguments& arguments;
  const SettingTexts& texts;
  const std::vector<ProjectorProfile>& profiles;
  SettingsFileContents file;  ///< Of `Diff` and `Apply`.
  std::string password;       ///< Of PJLink projectors whose profile has none.
  std::function<bool()> isInterrupted;
  std::function<void()> step;  ///< Called after each setting, from any thread.
};

/// Goes on until the work is interrupted or the projector is gone.
Progress ProgressOf(const Work& work, const ProjectorAccess& projector);

/// A setting with its value, for scripts.
QJsonObject ValueOf(const SettingTexts& texts, const ModelSetting& setting, int value,
                    std::optional<PowerState> power);

/// Complains of the words of `set` that no projector like this can follow. Whether a projector must
/// be asked before it is known that it can follow all others.
bool NeedsAsking(const Work& work, const Target& target, Report& report);
/// Asks it, and changes nothing.
Report CheckSet(const Work& work, ProjectorAccess& projector);

/// Does what the command says with one projector. `Watch` prints by itself, until it is
/// interrupted.
Report RunSettings(const Work& work, ProjectorAccess& projector);
Report RunGet(const Work& work, ProjectorAccess& projector);
Report RunSet(const Work& work, ProjectorAccess& projector);
Report RunReset(const Work& work, ProjectorAccess& projector);
Report RunStatus(const Work& work, ProjectorAccess& projector);
Report RunWatch(const Work& work, ProjectorAccess& projector);
Report RunSave(const Work& work, ProjectorAccess& projector);
Report RunDiff(const Work& work, ProjectorAccess& projector);
Report RunApply(const Work& work, ProjectorAccess& projector);
