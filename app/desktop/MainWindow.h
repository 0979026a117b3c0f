#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QMainWindow>

#include "app/desktop/WindowMemory.h"
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
class ProfileEditing;
class QSettings;
class SettingsActions;
class UsualActions;
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

  /// Brings the simulated projectors into different states. If there are no others, offers to find
  /// or add real ones.
  void Demonstrate();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void Connect();
  void Remember() const;
  /// What the last comparison saw of a projector, in its dialog if that is open.
  void ShowLastSeen(const std::string& id);
  void ConnectAlerts();
  void ShowProfiles();
  void OpenSelected();
  void TakeSelection();
  void ShowPreferences();

  ProfileDocument profiles_;
  WindowMemory memory_;
  CommandLog* log_;
  FaultPanel* faults_;
  AlertList* alerts_;
  LiveProjectors* live_;
  ListPane* pane_;
  WorkActions* work_;
  UsualActions* usual_;
  ProfileEditing* editing_;
  PresetActions* presets_;
  SettingsActions* settingsActions_;
  std::unique_ptr<DialogKeeper> dialogs_;
};
