#pragma once

#include <QStringList>

class QMainWindow;

/// Shows texts as a desktop notification, if the desktop supports them; a click brings the window
/// to the front.
void Notify(QMainWindow& window, const QStringList& texts);
