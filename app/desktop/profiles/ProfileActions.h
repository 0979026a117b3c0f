#pragma once

#include <functional>
#include <vector>

#include <QObject>
#include <QStringList>

class ProfileDocument;
class ProfileEditor;
class ProfileFileActions;
class ProfileHistory;
class QAction;
class QWidget;

/// Menu actions for the projectors in the profile file: adding, editing, duplicating, removing and
/// tagging them. Asks for names and numbers, and reports errors.
class ProfileActions : public QObject {
  Q_OBJECT

 public:
  using Positions = std::vector<int>;

  /// `selected` returns the positions of the selected projectors. The first three must outlive this
  /// object. The window owns this object, which owns the actions.
  ProfileActions(ProfileDocument& document, ProfileHistory& history, ProfileFileActions& files,
                 std::function<Positions()> selected, QWidget& window);

  QAction* Add() const { return add_; }
  QAction* Edit() const { return edit_; }
  QAction* Duplicate() const { return duplicate_; }
  QAction* Remove() const { return remove_; }
  QAction* Tag() const { return tag_; }

  /// Enables the actions that are possible for the document and the selected projectors.
  void Update();

 private:
  void AddProjector(const Positions& rows);
  void EditProjector(const Positions& rows);
  void DuplicateProjector(const Positions& rows);
  void RemoveProjectors(const Positions& rows);
  void TagProjectors(const Positions& rows);
  /// Gives those projectors these tags that lack one of them, or takes them from those with one.
  QString ChangeTags(Positions rows, QStringList tags, bool adds);
  /// Opens an editor, which the window then owns.
  void OpenEditor(ProfileEditor* editor);

  ProfileDocument& document_;
  ProfileHistory& history_;
  const std::function<Positions()> selected_;
  QWidget& window_;
  QAction* add_ = nullptr;
  QAction* edit_ = nullptr;
  QAction* duplicate_ = nullptr;
  QAction* remove_ = nullptr;
  QAction* tag_ = nullptr;
};
