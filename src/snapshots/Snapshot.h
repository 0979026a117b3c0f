#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QByteArray>
#include <QString>

#include "ProjectorSettingsExport.h"
#include "snapshots/SettingTexts.h"

inline namespace AdvancedControl {

/// A setting as it was.
struct SavedSetting {
  std::string key;
  int value = 0;                ///< Device value.
  std::string text;             ///< As it was shown, for people; what counts is the value.
  std::optional<int> source{};  ///< That it belongs to, where it is kept for each.

  friend bool operator==(const SavedSetting&, const SavedSetting&) = default;
};

/// The settings of a projector at one time: those that may be put back.
struct Snapshot {
  std::string projector;
  std::string model;
  int dialogType = 0;
  int modelCode = 0;
  std::string time;  ///< ISO 8601, UTC.
  std::vector<SavedSetting> settings;
  /// Put back before all others and one after another, so that a setting may stand here several
  /// times: what other sources and modes kept for themselves.
  std::vector<SavedSetting> beforehand{};
  bool isUndo = false;  ///< What a restoration replaced; it makes sense on that projector alone.

  friend bool operator==(const Snapshot&, const Snapshot&) = default;
};

/// What may be told and asked while many commands are sent, from the thread that sends them.
struct Progress {
  std::function<bool()> goesOn = [] { return true; };  ///< Asked before each command.
  std::function<void()> step = [] {};                  ///< Called after each setting.
};

/// A snapshot of this model and time without settings.
PROJECTOR_SETTINGS_EXPORT Snapshot EmptySnapshot(const std::string& projector,
                                                 const ModelData& model);

/// Reads every setting that may be put back; what the projector refuses to tell is left out, and
/// named in `unread` unless that is null, or the projector does not offer it at all.
PROJECTOR_SETTINGS_EXPORT Snapshot TakeSnapshot(const std::string& projector,
                                                const ModelSettings& settings,
                                                CPjtInterface& connection,
                                                const SettingTexts& texts,
                                                const Progress& progress = {},
                                                std::vector<std::string>* unread = nullptr);

/// The file's text: JSON, described in `docs/acctl.md`.
PROJECTOR_SETTINGS_EXPORT QByteArray WriteSnapshot(const Snapshot& snapshot);

struct SnapshotContents {
  Snapshot snapshot;
  QString error;  ///< One line: the place in the text and what is wrong; empty when all is well.
  QString path;   ///< Of what is wrong, as "settings[3].value"; empty where it is the whole text.
};

/// Reads what `WriteSnapshot` wrote, by whoever it was edited since. Unknown members are ignored.
PROJECTOR_SETTINGS_EXPORT SnapshotContents ReadSnapshot(const QByteArray& text);

}  // namespace AdvancedControl
