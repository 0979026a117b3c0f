#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QByteArray>
#include <QString>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"
#include "snapshots/SettingTexts.h"

namespace AdvancedControl {

/// A saved setting.
struct SavedSetting {
  std::string key;
  int value = 0;                ///< Device value.
  std::string text;             ///< The text of the value, for human readers only.
  std::optional<int> source{};  ///< Its input source, if it is kept for each one.

  friend bool operator==(const SavedSetting&, const SavedSetting&) = default;
};

/// The restorable settings of a projector at one time.
struct Snapshot {
  std::string projector;
  std::string model;
  int dialogType = 0;
  int modelCode = 0;
  std::string time;  ///< ISO 8601, UTC.
  std::vector<SavedSetting> settings;
  /// The values that belong to other sources and modes. They are restored before all others and
  /// strictly in order; a setting may occur several times.
  std::vector<SavedSetting> beforehand{};
  bool isUndo = false;  ///< Holds what a restoration replaced; only for the same projector.

  friend bool operator==(const Snapshot&, const Snapshot&) = default;
};

/// Callbacks while many commands are sent, on the thread that sends them.
struct Progress {
  std::function<bool()> goesOn = [] { return true; };  ///< Asked before each command.
  std::function<void()> step = [] {};                  ///< Called after each setting.
};

/// A snapshot of this model at the present time, without settings. Any thread.
PROJECTOR_SETTINGS_EXPORT Snapshot EmptySnapshot(const std::string& projector,
                                                 const ModelData& model);

/// Reads every setting that can be restored. Settings that the projector refuses to report are left
/// out, and added to `unread` if that is not null, unless the projector does not have them at all.
/// Call it from the thread on which the connection's channel may be called.
PROJECTOR_SETTINGS_EXPORT Snapshot TakeSnapshot(const std::string& projector,
                                                const ModelSettings& settings,
                                                CPjtInterface& connection,
                                                const SettingTexts& texts,
                                                const Progress& progress = {},
                                                std::vector<std::string>* unread = nullptr);

/// The file's text: JSON, described in `docs/acctl.md`. Any thread.
PROJECTOR_SETTINGS_EXPORT QByteArray WriteSnapshot(const Snapshot& snapshot);

struct SnapshotContents {
  Snapshot snapshot;
  QString error;  ///< One line: the place in the text and what is wrong; empty on success.
  QString path;   ///< Path of the error, such as "settings[3].value"; empty for the whole text.
};

/// Parses a file that `WriteSnapshot` wrote and that may have been edited since. Unknown members
/// are ignored. Any thread.
PROJECTOR_SETTINGS_EXPORT SnapshotContents ReadSnapshot(const QByteArray& text);

}  // namespace AdvancedControl
