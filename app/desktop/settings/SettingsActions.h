#pragma once

#include <functional>

#include <QObject>

#include "app/desktop/settings/RestoreDialog.h"

class QAction;
class QWidget;
class WhenIdle;

/// Saving the settings of projectors in files, comparing them with a file and putting a file back,
/// as actions for menus. Asks for files, tells errors.
class SettingsActions : public QObject {
  Q_OBJECT

 public:
  /// `selected` tells the projectors that are meant. `whenIdle` outlives this, which belongs to the
  /// window; the actions belong to it.
  SettingsActions(std::function<ProjectorSessions()> selected, WhenIdle& whenIdle, QWidget& window);

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
  void Tell(const QString& title, const QString& text);

  const std::function<ProjectorSessions()> selected_;
  WhenIdle& whenIdle_;
  QWidget& window_;
  QAction* save_;
  QAction* compare_;
  QAction* apply_;
};
