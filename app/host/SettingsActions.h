#pragma once

#include <functional>

#include <QObject>

#include "app/host/RestoreDialog.h"

class QAction;
class QWidget;

/// Saving the settings of projectors in files, comparing them with a file and putting a file back,
/// as actions for menus. Asks for files, tells errors.
class SettingsActions : public QObject {
  Q_OBJECT

 public:
  /// `selected` tells the projectors that are meant. This belongs to the window; the actions belong
  /// to it.
  SettingsActions(std::function<ProjectorSessions()> selected, QWidget& window);

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
  QAction* Make(const QString& text, void (SettingsActions::*act)());
  void Run(void (SettingsActions::*act)());
  void SaveSettings();
  void CompareSettings() { OpenFile(RestoreDialog::Purpose::Compare); }
  void ApplySettings() { OpenFile(RestoreDialog::Purpose::Restore); }
  void OpenFile(RestoreDialog::Purpose purpose);
  void Tell(const QString& title, const QString& text);

  const std::function<ProjectorSessions()> selected_;
  QWidget& window_;
  QAction* save_;
  QAction* compare_;
  QAction* apply_;
};
