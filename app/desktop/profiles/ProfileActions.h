#pragma once

#include <functional>
#include <vector>

#include <QObject>

class ProfileDocument;
class ProfileEditor;
class QAction;
class QKeySequence;
class QUndoStack;
class QWidget;

/// Menu actions for the profile file and the projectors in it. Asks for names and numbers, and
/// reports errors. Everything can be undone.
class ProfileActions : public QObject {
  Q_OBJECT

 public:
  using Positions = std::vector<int>;

  /// `selected` returns the positions of the selected projectors. The document must outlive this
  /// object. The window owns this object, which owns the actions.
  ProfileActions(ProfileDocument& document, std::function<Positions()> selected, QWidget& window);

  QAction* Open() const { return open_; }
  QAction* Reload() const { return reload_; }
  QAction* SaveAs() const { return saveAs_; }
  QAction* Undo() const { return undo_; }
  QAction* Redo() const { return redo_; }
  QAction* Add() const { return add_; }
  QAction* Edit() const { return edit_; }
  QAction* Duplicate() const { return duplicate_; }
  QAction* Remove() const { return remove_; }
  QAction* Tag() const { return tag_; }

  /// Enables the actions that are possible for the document and the selected projectors.
  void Update();

  /// Changes the document, and reports an error or emits `Changed`. `title` is what undoing calls
  /// it. Returns the error.
  QString Do(const QString& title, int selected, const std::function<QString()>& edit);

 Q_SIGNALS:
  /// The list of projectors has changed. `selected` is the position of the projector to select, −1
  /// for no particular one.
  void Changed(int selected);

 private:
  class TextEdit;

  QAction* MakeAction(const QString& text, const QKeySequence& keys, void (ProfileActions::*act)());
  void OpenFile();
  void ReloadFile();
  void SaveFileAs();
  void AddProjector();
  void EditProjector();
  void DuplicateProjector();
  void RemoveProjectors();
  void TagProjectors();
  /// Opens an editor, which the window then owns.
  void OpenEditor(ProfileEditor* editor);
  void ReportResult(const QString& title, const QString& error, int selected);

  ProfileDocument& document_;
  const std::function<Positions()> selected_;
  QWidget& window_;
  QUndoStack* undone_;
  QAction *open_, *reload_, *saveAs_, *undo_, *redo_, *add_, *edit_, *duplicate_, *remove_, *tag_;
};
