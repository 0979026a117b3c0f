#pragma once

#include <functional>

#include <QString>

class QWidget;

// Window-modal questions and messages. They run no event loop of their own, so they do not hold up
// a dialog that waits for its projector. They belong to the window, and delete themselves when they
// are closed.

struct FileQuestion {
  enum class Kind { Open, Save, Folder };

  Kind kind;
  QString title;
  QString suggestion;  ///< File name, with or without a folder; may be empty.
  QString filter;      ///< In the form of `QFileDialog`; unused for folders.
};

/// Calls `take` with the chosen path, unless the user cancels.
void AskForFile(QWidget& window, const FileQuestion& question,
                std::function<void(const QString& path)> take);

/// The folder of the file that was chosen last, where the next question begins; empty if there is
/// none. The window remembers it between runs.
QString LastFolder();
void SetLastFolder(const QString& folder);

/// Says in the status bar of the main window that a file was written.
void ShowSaved(QWidget& window, const QString& path);

/// Shows an error as plain text. If it has many lines, only the first ones are shown, and the
/// others on request. `detail` is shown below in a smaller font; may be empty.
void ShowError(QWidget& window, const QString& title, const QString& text,
               const QString& detail = {});
