#pragma once

#include <QStringList>

class QMainWindow;

/// Shows texts as a notification of the desktop, where it has any; a click brings the window to the
/// front.
void Notify(QMainWindow& window, const QStringList& texts);
