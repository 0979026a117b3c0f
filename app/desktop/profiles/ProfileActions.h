#pragma once

#include <functional>

#include <QObject>

class ProfileDocument;
class ProfileEditor;
class QAction;
class QWidget;

/// What a user does with the profile file and the projectors in it, as actions for menus. Asks for
/// names and numbers, tells errors.
class ProfileActions : public QObject {
  Q_OBJECT

 public:
  /// `current` tells the selected projector's position, −1 for none. The document must outlive
  /// this, which belongs to the window; the actions belong to it.
  ProfileActions(ProfileDocument& document, std::function<int()> current, QWidget& window);

  QAction* Open() const { return open_; }
  QAction* Reload() const { return reload_; }
  QAction* SaveAs() const { return saveAs_; }
  QAction* Add() const { return add_; }
  QAction* Edit() const { return edit_; }
  QAction* Duplicate() const { return duplicate_; }
  QAction* Remove() const { return remove_; }

  /// Enables what can be done with the document and the selected projector.
  void Update();

 Q_SIGNALS:
  /// The document has other projectors; `selected` is the position of the one to select, −1 for
  /// none in particular.
  void Changed(int selected);

 private:
  QAction* Make(const QString& text, const QKeySequence& keys, void (ProfileActions::*act)());
  void OpenFile();
  void ReloadFile();
  void SaveFileAs();
  void AddProjector();
  void EditProjector();
  void DuplicateProjector();
  void RemoveProjector();
  /// Opens an editor, which then belongs to the window; `selected` is the projector it is for.
  void OpenEditor(ProfileEditor* editor, int selected);
  /// Tells the error, if there is one, or the change.
  void Conclude(const QString& title, const QString& error, int selected);

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
