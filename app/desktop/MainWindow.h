#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QMainWindow>

#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/projectors/ProjectorSession.h"

class CAdvanceDlg;
class CommandLog;
class DialogKeeper;
class FaultPanel;
class ProfileActions;
class SettingsActions;
class ProjectorView;
class QSettings;
class QSplitter;

/// The list of projectors, from which a dialog is opened on each, with the log of their commands
/// and the controls of their simulations. Dialogs are open beside it, one per projector.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `settings`, not owned, keeps what the window remembers from one start to the next; with null
  /// it remembers nothing.
  explicit MainWindow(ProfileDocument profiles, QSettings* settings = nullptr);
  /// Of projectors that are in no file.
  explicit MainWindow(std::vector<ProjectorProfile> profiles);
  ~MainWindow() override;

  /// Opens the dialog of a projector or brings the open one to the front. Null when it could not be
  /// opened, or was closed while it was read; owned by the window. With a tab that one is shown,
  /// else the last one.
  CAdvanceDlg* OpenDialog(std::size_t projector, std::optional<int> tab = {});

  /// The projector's open dialog, or null.
  CAdvanceDlg* Dialog(std::size_t projector) const;

  /// The profile file that a user opened last; empty when none is remembered.
  static QString LastProfiles(const QSettings& settings);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  std::shared_ptr<ProjectorSession> MakeSession(const ProjectorProfile& profile);
  void MakeLayout();
  void MakeMenus();
  void ShowProfiles();
  void SelectFirst();
  void OpenCurrent();
  void Restore();
  void Remember();

  ProfileDocument profiles_;
  const QString firstProfiles_;  // the file at the start, which needs no remembering
  QSettings* settings_;
  ProjectorView* projectors_;
  CommandLog* log_;
  FaultPanel* faults_;
  QSplitter* sides_;
  QSplitter* tools_;
  ProfileActions* profileActions_;
  SettingsActions* settingsActions_;
  std::unique_ptr<DialogKeeper> dialogs_;
};
