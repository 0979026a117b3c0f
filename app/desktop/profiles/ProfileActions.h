#pragma once

#include <functional>

#include <QObject>

class ProfileDocument;
class ProfileEditor;
class QAction;
class QWidget;

/// Menu actions for the profile file and the projectors in it. Asks for names and numbers, and
/// reports errors.
class ProfileActions : public QObject {
  Q_OBJECT

 public:
  /// `current` returns the position of the selected projector, −1 for none. The document must
  /// outlive this object. The window owns this object, which owns the actions.
  ProfileActions(ProfileDocument& document, std::function<int()> current, QWidget& window);

  QAction* Open() const { return open_; }
  QAction* Reload() const { return reload_; }
  QAction* SaveAs() const { return saveAs_; }
  QAction* Add() const { return add_; }
  QAction* Edit() const { return edit_; }
  QAction* Duplicate() const { return duplicate_; }
  QAction* Remove() const { return remove_; }

  /// Enables the actions that are possible for the document and the selected projector.
  void Update();

 Q_SIGNALS:
  /// The list of projectors has changed. `selected` is the position of the projector to select, −1
  /// for no particular one.
  void Changed(int selected);

 private:
  QAction* MakeAction(const QString& text, const QKeySequence& keys, void (ProfileActions::*act)());
  void OpenFile();
  void ReloadFile();
  void SaveFileAs();
  void AddProjector();
  void EditProjector();
  void DuplicateProjector();
  void RemoveProjector();
  /// Opens an editor, which the window then owns, for the projector at `selected`.
  void OpenEditor(ProfileEditor* editor, int selected);
  /// Shows the error, if there is one; otherwise emits `Changed`.
  void ReportResult(const QString& title, const QString& error, int selected);

  ProfileDocument& document_;
  const std::function<int()> current_;
  QWidget& window_;
  QAction* open_;
  QAction* reload_;
  QAction* saveAs_;
  QAction* add_;
  QAction* edit_;
  QAction* duplicate_;
  QAction* remove_;
};
