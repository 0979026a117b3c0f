#pragma once

#include <functional>

class AlertList;
class CommandLog;
class FaultPanel;
class ListPane;
class PresetActions;
class ProfileEditing;
class QMainWindow;
class SettingsActions;
class UsualActions;

/// The parts of the main window that provide the actions of its menus.
struct MenuParts {
  ListPane& pane;
  CommandLog& log;
  const ProfileEditing& editing;
  const UsualActions& usual;
  const PresetActions& presets;
  const SettingsActions& settings;
  std::function<void()> open;         ///< Opens the dialogs of the selected projectors.
  std::function<void()> refresh;      ///< Asks the selected projectors for their state.
  std::function<void()> preferences;  ///< Opens the preferences; null if there are none.
};

/// Makes the docks: alerts, simulation and log. All are closed at first, so that dialogs have room.
void MakeDocks(QMainWindow& window, AlertList& alerts, FaultPanel& faults, CommandLog& log);

/// Makes the menus, the tool bar, the list's context menu and the buttons of the details. Needs the
/// docks.
void MakeMenus(QMainWindow& window, const MenuParts& parts);
