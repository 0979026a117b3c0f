#pragma once

class QMainWindow;
class QWidget;

/// Opens a window with all shortcuts: those in the menus of `window`, and those of the projectors'
/// dialogs.
void ShowShortcuts(QMainWindow& window);

/// Opens a window that says what this program is.
void ShowAbout(QWidget& window);
