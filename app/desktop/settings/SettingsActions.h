#pragma once

#include <functional>

#include <QObject>

#include "app/desktop/settings/RestoreDialog.h"

class QAction;
class QWidget;

/// Saving the settings of projectors in files, comparing them with a file and putting a file back,
/// as actions for menus. Asks for files, tells errors.
class SettingsActions : public QObject {
  Q_OBJECT

 public:
  /// `selected` tells the projectors that are meant. They are used through `whenQuiet`. This
  /// belongs to the window, and the actions to this.
  SettingsActions(std::function<ProjectorSessions()> selected, WhenQuiet whenQuiet,
                  QWidget& window);

  QAction* Save() const { return save_; }
  QAction* Compare() const { return compare_; }
  QAction* Apply() const { return apply_; }

  /// Enables what can be done with the selected projectors.
  void Update();

  /// Saves the settings of each projector: of one in `path`, of several in new files of their names
  /// in the folder `path`. One line for each that went wrong.
  static QStringList SaveTo(const QString& path, const ProjectorSessions& sessions,
                            const Progress& progress = {});

 private:
  using Act = void (SettingsActions::*)(const ProjectorSessions& sessions);

  QAction* Make(const QString& text, Act act);
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
