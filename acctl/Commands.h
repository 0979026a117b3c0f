#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "acctl/Arguments.h"
#include "acctl/Report.h"
#include "app/ProjectorLink.h"
#include "snapshots/Snapshot.h"

/// What all projectors of a command share.
struct Work {
  const Arguments& arguments;
  const SettingTexts& texts;
  std::optional<Snapshot> file;  ///< Of `Diff` and `Apply`.
  std::function<bool()> isInterrupted;
  std::function<void()> step;  ///< Called after each setting, from any thread.
};

/// Whether a name is one of the patterns, or there is none.
bool IsLike(std::string_view name, const std::vector<std::string>& patterns);

/// Goes on until the work is interrupted or the projector is gone.
Progress ProgressOf(const Work& work, const ProjectorLink& link);

/// A setting with its value, for scripts.
QJsonObject ValueOf(const SettingTexts& texts, const ModelSetting& setting, int value);

/// Does what the command says with one projector. `Watch` prints by itself, until it is
/// interrupted.
Report RunSettings(const Work& work, ProjectorLink& link);
Report RunGet(const Work& work, ProjectorLink& link);
Report RunSet(const Work& work, ProjectorLink& link);
Report RunReset(const Work& work, ProjectorLink& link);
Report RunStatus(const Work& work, ProjectorLink& link);
Report RunWatch(const Work& work, ProjectorLink& link);
Report RunSave(const Work& work, ProjectorLink& link);
Report RunDiff(const Work& work, ProjectorLink& link);
Report RunApply(const Work& work, ProjectorLink& link);
