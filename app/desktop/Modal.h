#pragma once

#include <functional>

#include <QString>

class QWidget;

// Questions and messages on a window, which takes no input until they are answered. They are
// opened and answered later; no event loop of their own runs, so that a dialog that waits for its
// projector is not held up. They belong to the window, and delete themselves when they are closed.

struct FileQuestion {
  enum class Kind { Open, Save, Folder };

  Kind kind;
  QString title;
  QString suggestion;  ///< A file's name, with or without its folder; may be empty.
  QString filter;      ///< As `QFileDialog` takes it; of no meaning for folders.
};

/// `take` is called with the path that was chosen, if one was.
void AskForFile(QWidget& window, const FileQuestion& question,
                std::function<void(const QString& path)> take);

/// Shows what went wrong, as plain text. Of many lines the first are shown, and the others on
/// demand. `detail` stands below in smaller letters; may be empty.
void ShowError(QWidget& window, const QString& title, const QString& text,
               const QString& detail = {});
