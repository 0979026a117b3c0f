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

/// The list of projectors, the log of their commands and the controls of their simulations.
/// Settings dialogs open beside it, one per projector.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `settings`, not owned, stores the window's state between runs; if null, nothing is stored.
  explicit MainWindow(ProfileDocument profiles, QSettings* settings = nullptr);
  /// For projectors that are in no file. Stores nothing.
  explicit MainWindow(std::vector<ProjectorProfile> profiles);
  ~MainWindow() override;

  /// Opens the dialog of a projector, or brings the open one to the front. `projector` is its
  /// position in the file. Selects `tab`, from 0, or else the tab shown last. Returns null if the
  /// dialog could not be opened, or was closed while it was being read. Owned by the window.
  CAdvanceDlg* OpenDialog(std::size_t projector, std::optional<int> tab = {});

  /// The projector's open dialog, or null.
  CAdvanceDlg* Dialog(std::size_t projector) const;

  /// The profile file that the user opened last; empty if there is none.
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
  const QString firstProfiles_;  // opened at the start; not stored as the last file
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
