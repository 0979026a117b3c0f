#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>
#include <QTimer>

#include "app/desktop/projectors/ProjectorSession.h"

class CAdvanceDlg;
class QSettings;
class QWidget;

/// The open settings dialogs, at most one per projector. Remembers where the last one was and which
/// tab it showed.
class DialogKeeper : public QObject {
  Q_OBJECT

 public:
  /// Dialogs open beside `window`, or cover as little of it as possible. `settings` may be null:
  /// then nothing is remembered. Neither is owned.
  DialogKeeper(const QWidget& window, QSettings* settings);
  ~DialogKeeper() override;

  /// Opens a projector's dialog, or brings the open one to the front. Selects `tab`, from 0, or
  /// else the tab shown last in any dialog. Returns null if the dialog could not be opened, or was
  /// closed while it was being read. Owned by the keeper.
  CAdvanceDlg* Open(const ProjectorSession& session, std::optional<int> tab = {});

  /// The projector's open dialog, or null.
  CAdvanceDlg* Of(const ProjectorSession& session) const;

  /// Closes a projector's dialog, if it is open. The projector may be destroyed afterwards.
  void Close(const ProjectorSession& session);
  void CloseAll();
  /// Tells the open dialogs what the profiles of their sessions say now.
  void UpdateAll();
  /// Hides all dialogs. Those whose handlers still run are deleted after the handlers have
  /// returned.
  void RejectAll();

 Q_SIGNALS:
  void Opened(const ProjectorSession* session);
  void Closed(const ProjectorSession* session);

 private:
  void Arrange(CAdvanceDlg& dialog);
  void Place(CAdvanceDlg& dialog) const;
  void SelectTab(CAdvanceDlg& dialog, const CModelInfo2& model, std::optional<int> tab);
  void Retire(const ProjectorSession* session);
  void Remember(const CAdvanceDlg& dialog);
  void DeleteRetired();

  const QWidget& window_;
  QSettings* settings_;
  std::map<const ProjectorSession*, std::unique_ptr<CAdvanceDlg>> dialogs_;
  /// Closed dialogs whose handlers may still be running.
  std::vector<std::unique_ptr<CAdvanceDlg>> retired_;
  QTimer deleteRetired_;
};
