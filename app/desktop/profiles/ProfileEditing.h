#pragma once

#include <functional>
#include <vector>

#include <QObject>

class ProfileActions;
class ProfileDocument;
class ProfileFileActions;
class ProfileHistory;
class QWidget;
class TransferActions;

/// All actions of the menus that change the profile file, with their common history.
class ProfileEditing : public QObject {
  Q_OBJECT

 public:
  /// `selected` returns the positions of the selected projectors. The document must outlive this
  /// object, which the window owns.
  ProfileEditing(ProfileDocument& document, std::function<std::vector<int>()> selected,
                 QWidget& window);

  ProfileHistory& History() const { return *history_; }
  const ProfileFileActions& Files() const { return *files_; }
  const ProfileActions& Projectors() const { return *projectors_; }
  const TransferActions& Transfers() const { return *transfers_; }

  /// Enables the actions that are possible for the document and the selected projectors.
  void Update();

 private:
  ProfileHistory* history_;
  ProfileFileActions* files_;
  ProfileActions* projectors_;
  TransferActions* transfers_;
};
