#include "app/desktop/WindowMemory.h"

#include <utility>

#include <QFileInfo>
#include <QHeaderView>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>

#include "app/desktop/ListPane.h"
#include "app/desktop/Modal.h"
#include "app/desktop/alerts/AlertList.h"
#include "app/desktop/log/CommandLog.h"
#include "app/desktop/log/LogTable.h"

namespace {

constexpr QSize kUsualSize{1340, 760};
constexpr QSize kFrame{18, 40};  // of a window; a guess until it is shown

constexpr const char* kGeometryKey = "window/geometry";
constexpr const char* kStateKey = "window/docks";
constexpr const char* kSidesKey = "window/panes";
constexpr const char* kProjectorColumnsKey = "window/liveColumns";
constexpr const char* kLogColumnsKey = "window/commandColumns";
constexpr const char* kAcknowledgedKey = "alerts/acknowledged";
constexpr const char* kFolderKey = "window/folder";
constexpr const char* kProjectorKey = "window/projector";
constexpr const char* kProfilesKey = "window/profiles";

}  // namespace

WindowMemory::WindowMemory(QSettings* settings, const QString& firstFile)
    : settings_(settings), file_(firstFile) {}

// The first time, the window opens at the lower right, so that a dialog at the upper left covers
// little of it.
void WindowMemory::Restore(QMainWindow& window, ListPane& pane, CommandLog& log,
                           AlertList& alerts) const {
  if (settings_ != nullptr) {
    SetLastFolder(settings_->value(kFolderKey).toString());
    alerts.RememberAcknowledged(settings_->value(kAcknowledgedKey).toStringList());
  }
  const QRect screen = window.screen()->availableGeometry();
  if (settings_ != nullptr &&
      window.restoreGeometry(settings_->value(kGeometryKey).toByteArray())) {
    window.restoreState(settings_->value(kStateKey).toByteArray());
    if (!pane.RestoreState(settings_->value(kSidesKey).toByteArray())) pane.Spread(window.width());
    pane.View().Columns().restoreState(settings_->value(kProjectorColumnsKey).toByteArray());
    log.Table().RestoreColumns(settings_->value(kLogColumnsKey).toByteArray());
    return;
  }
  const QSize usual = kUsualSize.expandedTo({pane.UsualWidth(), 0});
  window.resize(usual.boundedTo(screen.size() - kFrame));
  pane.Spread(window.width());
  window.move(screen.right() + 1 - window.width() - kFrame.width(),
              screen.bottom() + 1 - window.height() - kFrame.height());
}

void WindowMemory::StoreAcknowledged(const AlertList& alerts) const {
  if (settings_ == nullptr) return;
  const QStringList acknowledged = alerts.Acknowledged();
  if (settings_->value(kAcknowledgedKey).toStringList() != acknowledged)
    settings_->setValue(kAcknowledgedKey, acknowledged);
}

void WindowMemory::StoreFile(const QString& file) {
  if (file == std::exchange(file_, file) || settings_ == nullptr) return;
  settings_->setValue(kProfilesKey, QFileInfo(file).absoluteFilePath());
}

void WindowMemory::Store(const QMainWindow& window, const ListPane& pane,
                         const CommandLog& log) const {
  if (settings_ == nullptr) return;
  settings_->setValue(kGeometryKey, window.saveGeometry());
  settings_->setValue(kStateKey, window.saveState());
  settings_->setValue(kSidesKey, pane.SaveState());
  settings_->setValue(kProjectorColumnsKey, pane.View().Columns().saveState());
  settings_->setValue(kLogColumnsKey, log.Table().SaveColumns());
  settings_->setValue(kFolderKey, LastFolder());
  if (const ProjectorRow* current = pane.View().Current())
    settings_->setValue(kProjectorKey, QString::fromStdString(current->profile.name));
  settings_->sync();  // a session that ends does not wait for the event loop
}

std::string WindowMemory::LastProjector() const {
  return settings_ == nullptr ? std::string()
                              : settings_->value(kProjectorKey).toString().toStdString();
}

QString WindowMemory::LastProfiles(const QSettings& settings) {
  return settings.value(kProfilesKey).toString();
}
