#pragma once

#include <functional>

#include <QObject>
#include <QString>

class ProfileDocument;
class QAction;
class QUndoStack;
class QWidget;

/// The edits of the profile file, which can be undone and done again. If the file cannot be
/// written, this can be tried again. If the other files of an edit cannot be changed back, all
/// edits are forgotten, because their texts of the file name what these other files had.
class ProfileHistory : public QObject {
  Q_OBJECT

 public:
  /// The document must outlive this object, which the window owns.
  ProfileHistory(ProfileDocument& document, QWidget& window);

  QAction* Undo() const { return undo_; }
  QAction* Redo() const { return redo_; }

  /// Changes of other files that undo an edit, and do it again. A text as a result is an error.
  struct Beside {
    std::function<QString()> undo;
    std::function<QString()> redo;
  };

  /// Carries out an edit of the document and emits `Changed`, unless it returns an error, which is
  /// then the result. `title` is the name of the edit in the menu; `selected` as in `Changed`. If
  /// the edit changes other files too, `beside` has both functions.
  QString Do(const QString& title, int selected, const std::function<QString()>& edit,
             const Beside& beside = {});
  /// As `Do`, but shows the error.
  void DoAndReport(const QString& title, int selected, const std::function<QString()>& edit);

  /// Reads or writes the document's file. If its text is another one afterwards, earlier edits
  /// cannot be undone any more. Shows the error.
  void Replace(const QString& title, const std::function<QString()>& replace);

 Q_SIGNALS:
  /// The list of projectors has changed. `selected` is the position of the projector to select, −1
  /// for no particular one.
  void Changed(int selected);

 private:
  class TextEdit;

  void Report(const QString& title, const QString& error);

  ProfileDocument& document_;
  QWidget& window_;
  QUndoStack* stack_;
  /// What remains to be done after a command that failed, which the stack counts as done.
  void (QUndoStack::*next_)() = nullptr;
  QAction* undo_;
  QAction* redo_;
};
