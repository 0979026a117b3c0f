#pragma once

class QMainWindow;
class QWidget;

/// Opens a window that lists the shortcuts in the menus of `window` and those of the settings
/// dialogs.
void ShowShortcuts(QMainWindow& window);

/// Opens the About window.
void ShowAbout(QWidget& window);
