#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QMainWindow>

#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/projectors/ProjectorSession.h"
#include "fleet/FleetPolicy.h"

class AlertList;
class CAdvanceDlg;
class CommandLog;
class DialogKeeper;
class FaultPanel;
class ListPane;
class LiveProjectors;
class PresetActions;
class ProfileActions;
class ProjectorView;
class QSettings;
class SettingsActions;
class TransferActions;
class WorkActions;

/// The groups and the list of projectors, the details of the selected one, and docks for the log of
/// commands and the simulations. Settings dialogs open beside it, one per projector.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `settings`, not owned, stores the window's state between runs; if null, nothing is stored.
  explicit MainWindow(ProfileDocument profiles, QSettings* settings = nullptr,
                      const FleetPolicy& policy = {});
  /// For projectors that are in no file. Stores nothing.
  explicit MainWindow(std::vector<FleetProfile> profiles, const FleetPolicy& policy = {});
  ~MainWindow() override;

  /// Opens the dialog of a projector, or brings the open one to the front. `projector` is its
  /// position in the file. Selects `tab`, from 0, or else the tab shown last. Returns null if the
  /// dialog could not be opened, or was closed while it was being read. Owned by the window.
  CAdvanceDlg* OpenDialog(std::size_t projector, std::optional<int> tab = {});

  /// The projector's open dialog, or null.
  CAdvanceDlg* Dialog(std::size_t projector) const;
  std::shared_ptr<ProjectorSession> Session(std::size_t projector) const;

  /// Brings the simulated projectors into different states.
  void Demonstrate();

  /// The profile file that the user opened last; empty if there is none.
  static QString LastProfiles(const QSettings& settings);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void MakeDocks();
  void MakeMenus();
  void Connect();
  void ShowProfiles();
  void SelectFirst();
  void OpenSelected();
  void TakeSelection();
  void TakeAlerts();
  void ShowPreferences();
  void Restore();
  void Remember();

  ProfileDocument profiles_;
  const QString firstProfiles_;  // opened at the start; not stored as the last file
  QSettings* settings_;
  CommandLog* log_;
  FaultPanel* faults_;
  AlertList* alerts_;
  std::unique_ptr<LiveProjectors> live_;
  ListPane* pane_;
  ProjectorView* projectors_;
  WorkActions* work_;
  ProfileActions* profileActions_;
  TransferActions* transfers_;
  PresetActions* presets_;
  SettingsActions* settingsActions_;
  std::unique_ptr<DialogKeeper> dialogs_;
};
