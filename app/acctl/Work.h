#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/acctl/Arguments.h"
#include "app/acctl/RecordedRun.h"
#include "app/acctl/Report.h"
#include "app/acctl/ValueCodes.h"
#include "app/profiles/SettingsFile.h"
#include "app/profiles/SimulatorNotice.h"
#include "fleet/FleetProfile.h"
#include "fleet/JobLoop.h"
#include "snapshots/Snapshot.h"

class ModelCache;
class UndoRecorder;

/// The files of settings that a command uses: one for all projectors, or each projector's own.
struct SettingsFiles {
  SettingsFileContents common{};
  std::map<std::string, SettingsFileContents>
      own{};  ///< By name; if not empty, `common` is unused.

  const SettingsFileContents& Of(const std::string& projector) const {
    const auto found = own.find(projector);
    return found != own.end() ? found->second : common;
  }
};

/// What the runs of a command for all its projectors share. Any thread may read it.
struct Work {
  const Arguments& arguments;
  const ValueTexts& texts;
  const std::vector<FleetProfile>& profiles;
  bool isForSeveral = false;  ///< If so, it is not wrong usage if one of them lacks a setting.
  SettingsFiles files{};
  std::map<std::string, std::string> paths{};  ///< The file to save each projector in, by name.
  /// What tells a projector from others in undo files, by name. Those that this program simulates
  /// itself are missing, since no change of them lasts.
  std::map<std::string, UndoId> undoIds{};
  std::vector<std::string> conditionKeys{};  ///< The settings that --where and --until compare.
  ServedAddresses served{};                  ///< Of simulated projectors, by name.
  std::string password{};                    ///< Of PJLink projectors whose profile has none.
  ModelCache* models = nullptr;              ///< Null if no projector is asked.
  UndoRecorder* undo = nullptr;              ///< Null if the command changes nothing.
  JobLoop* loop = nullptr;                   ///< Waits for the projectors; null as `models`.
  std::function<bool()> isInterrupted;
};
