#include "app/desktop/settings/SettingsActions.h"

#include <utility>

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QProgressDialog>

#include "app/desktop/Modal.h"
#include "app/desktop/projectors/ProjectorSession.h"
#include "app/desktop/settings/RetryAfterSilenceChannel.h"
#include "app/profiles/SettingsFile.h"
#include "device/ModelDataIntake.h"
#include "fleet/WholeFile.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"

SettingsActions::SettingsActions(std::function<ProjectorSessions()> selected, WhenQuiet whenQuiet,
                                 QWidget& window)
    : QObject(&window),
      selected_(std::move(selected)),
      whenQuiet_(std::move(whenQuiet)),
      window_(window),
      save_(MakeAction(tr("Save Se&ttings…"), &SettingsActions::SaveSettings)),
      compare_(MakeAction(tr("&Compare with File…"), &SettingsActions::CompareSettings)),
      apply_(MakeAction(tr("A&pply Settings…"), &SettingsActions::ApplySettings)) {
  Update(false);
}

QAction* SettingsActions::MakeAction(const QString& text, Act act) {
  auto* action = new QAction(text, this);
  connect(action, &QAction::triggered, this, [this, act] {
    const ProjectorSessions sessions = selected_();
    if (!sessions.empty()) (this->*act)(sessions);
  });
  return action;
}

void SettingsActions::Update(bool any) {
  for (QAction* action : {save_, compare_, apply_}) action->setEnabled(any);
}

QStringList SettingsActions::SaveTo(const QString& path, const ProjectorSessions& sessions,
                                    const Progress& progress) {
  QStringList errors;
  const SettingTexts texts(CatalogFolders(), SystemLanguageId());
  for (const auto& session : sessions) {
    const std::string& name = session->Profile().name;
    const QString shownName = QString::fromStdString(name);
    const ModelSettings settings(MakeModelData(session->Model()));
    CPjtInterface connection;
    const auto channel = MakePatientChannel(*session, progress.goesOn);
    connection.SetChannel(channel);
    const Progress whileThere{.goesOn = [&] { return progress.goesOn() && !channel->IsGone(); },
                              .step = progress.step};
    std::vector<std::string> unread;
    const Snapshot snapshot = TakeSnapshot(name, settings, connection, texts, whileThere, &unread);
    // An incomplete snapshot must not be saved: it would look complete.
    if (!progress.goesOn()) break;
    if (channel->IsGone()) {
      errors.append(tr("%1: no answer").arg(shownName));
      continue;
    }
    if (snapshot.settings.empty()) {
      errors.append(tr("%1: nothing can be read").arg(shownName));
      continue;
    }
    if (!unread.empty()) {
      errors.append(tr("%1: %n settings cannot be read and are left out", nullptr,
                       static_cast<int>(unread.size()))
                        .arg(shownName));
    }
    const QByteArray bytes = WriteSnapshot(snapshot);
    const QString error =
        sessions.size() == 1
            ? WriteWholeFile(path, bytes)
            : WriteNewFile(QDir(path).filePath(FileNameOf(name) + ".json"), bytes).error;
    if (!error.isEmpty()) errors.append(error);
  }
  return errors;
}

void SettingsActions::SaveSettings(const ProjectorSessions& sessions) {
  const bool isOne = sessions.size() == 1;
  AskForFile(
      window_,
      {.kind = isOne ? FileQuestion::Kind::Save : FileQuestion::Kind::Folder,
       .title = isOne ? tr("Save Settings") : tr("Save Settings in Folder"),
       .suggestion = isOne ? FileNameOf(sessions.front()->Profile().name) + ".json" : QString(),
       .filter = tr("Settings (*.json)")},
      [this, sessions](const QString& path) { SaveWatched(path, sessions); });
}

void SettingsActions::SaveWatched(const QString& path, const ProjectorSessions& sessions) {
  const QString title = tr("Save Settings");
  auto* watched = new QProgressDialog(tr("Waiting for the projector of an open dialog…"),
                                      tr("Stop"), 0, 0, &window_);
  watched->setWindowTitle(title);
  // Modal from the start, so that nobody uses the projectors or their dialogs meanwhile.
  watched->setWindowModality(Qt::ApplicationModal);
  watched->show();
  whenQuiet_(watched, [this, path, sessions, title, watched] {
    watched->setLabelText(tr("Reading settings…"));
    const QStringList errors = SaveTo(path, sessions,
                                      {.goesOn = [watched] { return !watched->wasCanceled(); },
                                       .step = [] { QCoreApplication::processEvents(); }});
    watched->deleteLater();
    watched->reset();
    if (!errors.isEmpty()) ShowError(window_, title, errors.join(QLatin1Char('\n')));
  });
}

void SettingsActions::CompareSettings(const ProjectorSessions& sessions) {
  OpenFile(RestoreDialog::Purpose::Compare, sessions);
}

void SettingsActions::ApplySettings(const ProjectorSessions& sessions) {
  OpenFile(RestoreDialog::Purpose::Restore, sessions);
}

void SettingsActions::OpenFile(RestoreDialog::Purpose purpose, const ProjectorSessions& sessions) {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Open,
              .title = tr("Open Settings"),
              .suggestion = {},
              .filter = tr("Settings (*.json)")},
             [this, purpose, sessions](const QString& path) {
               OpenRestoreDialog(purpose, sessions, path);
             });
}

void SettingsActions::OpenRestoreDialog(RestoreDialog::Purpose purpose,
                                        const ProjectorSessions& sessions, const QString& path) {
  SettingsFileContents contents = ReadSettingsFile(path);
  if (!contents.error.isEmpty()) {
    return ShowError(window_, tr("Open Settings"), contents.error);
  }
  auto* dialog = new RestoreDialog(purpose, std::move(contents.snapshot), path, sessions,
                                   whenQuiet_, &window_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  // Modal, so that nobody uses the projectors or their dialogs meanwhile.
  dialog->setWindowModality(Qt::ApplicationModal);
  dialog->show();
}
