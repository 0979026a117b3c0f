#include "app/desktop/settings/SettingsActions.h"

#include <utility>

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>

#include "app/desktop/settings/AfreshChannel.h"
#include "app/desktop/projectors/ProjectorSession.h"
#include "app/desktop/WhenIdle.h"
#include "app/profiles/SettingsFile.h"
#include "app/profiles/WholeFile.h"
#include "device/ModelDataIntake.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"

namespace {

constexpr qsizetype kLinesTold = 10;

}  // namespace

SettingsActions::SettingsActions(std::function<ProjectorSessions()> selected, WhenIdle& whenIdle,
                                 QWidget& window)
    : QObject(&window),
      selected_(std::move(selected)),
      whenIdle_(whenIdle),
      window_(window),
      save_(Make(tr("Save Se&ttings…"), &SettingsActions::SaveSettings)),
      compare_(Make(tr("&Compare with File…"), &SettingsActions::CompareSettings)),
      apply_(Make(tr("A&pply Settings…"), &SettingsActions::ApplySettings)) {
  Update();
}

// Those that were selected when it was chosen are meant.
QAction* SettingsActions::Make(const QString& text, Act act) {
  auto* action = new QAction(text, this);
  connect(action, &QAction::triggered, this, [this, act] {
    whenIdle_.Run([this, act, sessions = selected_()] {
      if (!sessions.empty()) (this->*act)(sessions);
    });
  });
  return action;
}

void SettingsActions::Update() {
  const bool any = !selected_().empty();
  for (QAction* action : {save_, compare_, apply_}) action->setEnabled(any);
}

// What a file holds is no markup. Many lines scroll.
void SettingsActions::Tell(const QString& title, const QString& text) {
  QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Ok, &window_);
  box.setTextFormat(Qt::PlainText);
  const QStringList lines = text.split(QLatin1Char('\n'));
  if (lines.size() > kLinesTold) {
    box.setText(lines.first(kLinesTold).join(QLatin1Char('\n')) + QStringLiteral("\n…"));
    box.setDetailedText(text);
  }
  box.exec();
}

QStringList SettingsActions::SaveTo(const QString& path, const ProjectorSessions& sessions,
                                    const Progress& progress) {
  QStringList errors;
  const SettingTexts texts(CatalogFolders(), SystemLanguageId());
  for (const auto& session : sessions) {
    const std::string& name = session->Profile().Name;
    const QString shownName = QString::fromStdString(name);
    const ModelSettings settings(MakeModelData(session->Model()));
    CPjtInterface connection;
    const auto channel = MakePatient(*session, progress.goesOn);
    connection.SetChannel(channel);
    const Progress whileThere{.goesOn = [&] { return progress.goesOn() && !channel->IsGone(); },
                              .step = progress.step};
    std::vector<std::string> unread;
    const Snapshot snapshot = TakeSnapshot(name, settings, connection, texts, whileThere, &unread);
    // Half a snapshot would look like a whole one.
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
      errors.append(tr("%1: %2 settings cannot be read and are left out")
                        .arg(shownName)
                        .arg(static_cast<int>(unread.size())));
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
  const QString title = tr("Save Settings");
  const QString path =
      sessions.size() == 1
          ? QFileDialog::getSaveFileName(&window_, title,
                                         FileNameOf(sessions.front()->Profile().Name) + ".json",
                                         tr("Settings (*.json)"))
          : QFileDialog::getExistingDirectory(&window_, tr("Save Settings in Folder"));
  if (path.isEmpty()) return;
  QProgressDialog watched(tr("Reading settings…"), tr("Stop"), 0, 0, &window_);
  watched.setWindowTitle(title);
  // From the start, so that neither the projectors nor their dialogs are used meanwhile.
  watched.setWindowModality(Qt::ApplicationModal);
  watched.show();
  const QStringList errors = SaveTo(path, sessions,
                                    {.goesOn = [&watched] { return !watched.wasCanceled(); },
                                     .step = [] { QCoreApplication::processEvents(); }});
  watched.reset();
  if (!errors.isEmpty()) Tell(title, errors.join(QLatin1Char('\n')));
}

void SettingsActions::CompareSettings(const ProjectorSessions& sessions) {
  OpenFile(RestoreDialog::Purpose::Compare, sessions);
}

void SettingsActions::ApplySettings(const ProjectorSessions& sessions) {
  OpenFile(RestoreDialog::Purpose::Restore, sessions);
}

void SettingsActions::OpenFile(RestoreDialog::Purpose purpose, const ProjectorSessions& sessions) {
  const QString path =
      QFileDialog::getOpenFileName(&window_, tr("Open Settings"), {}, tr("Settings (*.json)"));
  if (path.isEmpty()) return;
  SettingsFileContents contents = ReadSettingsFile(path);
  if (!contents.error.isEmpty()) return Tell(tr("Open Settings"), contents.error);
  RestoreDialog dialog(purpose, std::move(contents.snapshot), path, sessions, &window_);
  dialog.exec();
}
