#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>
#include <QRect>
#include <QTimer>

#include "app/desktop/projectors/ProjectorSession.h"

class CAdvanceDlg;
class QSettings;
class QWidget;

/// The open dialogs, at most one per projector. Remembers where the last one was and which tab it
/// showed.
class DialogKeeper : public QObject {
  Q_OBJECT

 public:
  /// Dialogs open beside what `inView` tells, places of the screen, the most important one first,
  /// or cover as little of them as possible; for the first place a dialog even opens less high.
  /// `settings` may be null: then nothing is remembered. Neither is owned.
  DialogKeeper(const QWidget& window, std::function<std::vector<QRect>()> inView,
               QSettings* settings);
  ~DialogKeeper() override;

  /// Opens a projector's dialog or brings the open one to the front. Null when it could not be
  /// opened, or was closed while it was read; owned by the keeper. With a tab that one is shown,
  /// else the one that was shown last in any.
  CAdvanceDlg* Open(const ProjectorSession& session, std::optional<int> tab = {});

  /// Runs work on projectors now, or as soon as no dialog waits for one: a handler that waits below
  /// it could not go on before the work has ended, and no command can be given in between. Whether
  /// it has run now. It does not when `context` is gone before.
  bool RunWhenQuiet(QObject* context, std::function<void()> work);

  /// The projector's open dialog, or null.
  CAdvanceDlg* Of(const ProjectorSession& session) const;

  /// Closes a projector's dialog, if it is open. The projector may be destroyed afterwards.
  void Close(const ProjectorSession& session);
  void CloseAll();
  /// Takes all dialogs off the screen; those whose handlers still run live on until these have
  /// returned.
  void RejectAll();

 Q_SIGNALS:
  void Opened(const ProjectorSession* session);
  void Closed(const ProjectorSession* session);

 private:
  bool IsWaiting() const;
  void Arrange(CAdvanceDlg& dialog);
  void Place(CAdvanceDlg& dialog) const;
  void SelectTab(CAdvanceDlg& dialog, const CModelInfo2& model, std::optional<int> tab);
  void Retire(const ProjectorSession* session);
  void Remember(const CAdvanceDlg& dialog);
  void DeleteRetired();

  const QWidget& window_;
  const std::function<std::vector<QRect>()> inView_;
  QSettings* settings_;
  std::map<const ProjectorSession*, std::unique_ptr<CAdvanceDlg>> dialogs_;
  /// Closed dialogs whose handlers may still be running.
  std::vector<std::unique_ptr<CAdvanceDlg>> retired_;
  QTimer deleteRetired_;
};
