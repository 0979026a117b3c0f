#pragma once

#include <functional>

#include <QObject>

class ProfileDocument;
class ProfileHistory;
class QAction;
class QWidget;

/// Menu actions for the profile file as a whole: opening, reloading and saving it.
class ProfileFileActions : public QObject {
  Q_OBJECT

 public:
  /// Both the document and the history must outlive this object, which the window owns.
  ProfileFileActions(ProfileDocument& document, ProfileHistory& history, QWidget& window);

  QAction* Open() const { return open_; }
  QAction* Reload() const { return reload_; }
  QAction* SaveAs() const { return saveAs_; }

  /// Enables the actions that are possible for the document.
  void Update();

  /// Calls `edit`, which asks the user for a change of the file. If the file cannot be written, it
  /// says so first, and offers to save it under another name; `edit` is called once it is saved.
  void WhenWritable(std::function<void()> edit);

 private:
  void OpenFile();
  void ReloadFile();
  void SaveFileAs(std::function<void()> then);

  ProfileDocument& document_;
  ProfileHistory& history_;
  QWidget& window_;
  QAction* open_;
  QAction* reload_;
  QAction* saveAs_;
};
