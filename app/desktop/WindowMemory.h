#pragma once

#include <string>

#include <QString>

class AlertList;
class CommandLog;
class ListPane;
class QMainWindow;
class QSettings;

/// What the main window remembers between runs: its place, docks and columns, acknowledged
/// alerts, the profile file, the selected projector, and the folder of the last file.
class WindowMemory {
 public:
  /// `settings`, not owned, may be null: then nothing is remembered. `firstFile` is the profile
  /// file that the program opened by itself; it does not count as opened by the user.
  WindowMemory(QSettings* settings, const QString& firstFile);

  QSettings* Settings() const { return settings_; }

  void Restore(QMainWindow& window, ListPane& pane, CommandLog& log, AlertList& alerts) const;

  // What would be missed if the program did not end as it should is stored when it changes.

  void StoreAcknowledged(const AlertList& alerts) const;
  /// `file` is the present profile file.
  void StoreFile(const QString& file);
  /// Everything else.
  void Store(const QMainWindow& window, const ListPane& pane, const CommandLog& log) const;

  /// The name of the projector that was selected last.
  std::string LastProjector() const;
  /// The profile file that the user opened last; empty if there is none.
  static QString LastProfiles(const QSettings& settings);

 private:
  QSettings* settings_;
  QString file_;  ///< Was stored, or need not be.
};
