#pragma once

#include <functional>

#include <QObject>

#include "app/desktop/settings/RestoreDialog.h"

class QAction;
class QWidget;

/// Menu actions that save the settings of projectors in files, compare them with a file, and
/// restore them from a file. Asks for files, and reports errors.
class SettingsActions : public QObject {
  Q_OBJECT

 public:
  /// `selected` returns the projectors to work on. All work on them is done through `whenQuiet`.
  /// The window owns this object, which owns the actions.
  SettingsActions(std::function<ProjectorSessions()> selected, WhenQuiet whenQuiet,
                  QWidget& window);

  QAction* Save() const { return save_; }
  QAction* Compare() const { return compare_; }
  QAction* Apply() const { return apply_; }

  /// Enables the actions if projectors are selected.
  void Update(bool any);

  /// Saves the settings of each projector: those of a single one in the file `path`, those of
  /// several in new files in the folder `path`, named after the projectors. Returns a line for each
  /// failure.
  static QStringList SaveTo(const QString& path, const ProjectorSessions& sessions,
                            const Progress& progress = {});

 private:
  using Act = void (SettingsActions::*)(const ProjectorSessions& sessions);

  QAction* MakeAction(const QString& text, Act act);
  void SaveSettings(const ProjectorSessions& sessions);
  void CompareSettings(const ProjectorSessions& sessions);
  void ApplySettings(const ProjectorSessions& sessions);
  void OpenFile(RestoreDialog::Purpose purpose, const ProjectorSessions& sessions);
  void OpenRestoreDialog(RestoreDialog::Purpose purpose, const ProjectorSessions& sessions,
                         const QString& path);
  void SaveWatched(const QString& path, const ProjectorSessions& sessions);

  const std::function<ProjectorSessions()> selected_;
  const WhenQuiet whenQuiet_;
  QWidget& window_;
  QAction* save_;
  QAction* compare_;
  QAction* apply_;
};
