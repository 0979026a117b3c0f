#include "app/desktop/SettingsActions.h"

#include <utility>

#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include "app/desktop/Modal.h"
#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/work/ComparisonDialog.h"
#include "app/desktop/work/WorkActions.h"
#include "app/profiles/SettingsFile.h"
#include "fleet/FleetUndo.h"
#include "fleet/WholeFile.h"

SettingsActions::SettingsActions(Parts parts)
    : QObject(&parts.window),
      parts_(std::move(parts)),
      save_(new QAction(tr("Save Se&ttings…"), this)),
      compare_(new QAction(tr("&Compare with File…"), this)),
      apply_(new QAction(tr("A&pply Settings…"), this)) {
  connect(save_, &QAction::triggered, this, &SettingsActions::AskWhereToSave);
  connect(compare_, &QAction::triggered, this, [this] { AskForSettings(false); });
  connect(apply_, &QAction::triggered, this, [this] { AskForSettings(true); });
  Update(false);
}

void SettingsActions::Update(bool any) {
  for (QAction* action : {save_, compare_, apply_}) action->setEnabled(any);
}

SettingsActions::Rows SettingsActions::Selected() const {
  Rows rows;
  for (const ProjectorRow* row : parts_.selected()) rows.push_back(*row);
  return rows;
}

void SettingsActions::AskWhereToSave() {
  const Rows rows = Selected();
  if (rows.empty()) return;
  const bool isOne = rows.size() == 1;
  AskForFile(parts_.window,
             {.kind = isOne ? FileQuestion::Kind::Save : FileQuestion::Kind::Folder,
              .title = isOne ? tr("Save Settings") : tr("Save Settings in Folder"),
              .suggestion = isOne ? FileNameOf(rows.front().profile.name) + ".json" : QString(),
              .filter = tr("Settings (*.json)")},
             [this, rows](const QString& path) { SaveTo(path, rows); });
}

void SettingsActions::SaveTo(const QString& path, const Rows& rows) {
  WorkPart part{.work = TakeSnapshots(), .targets = {}};
  const auto saving = std::make_shared<Saving>();
  saving->path = path;
  for (const ProjectorRow& row : rows) {
    part.targets.push_back(parts_.watch.TargetOf(row.profile));
    saving->names[row.id] = row.profile.name;
  }
  Q_EMIT parts_.work.Reported(tr("Reading settings…"));
  // Called again when those that failed are tried again.
  parts_.work.Do({.title = tr("Save Settings"), .question = {}, .parts = {std::move(part)}},
                 [this, saving](const WorkRun& run) { Write(*saving, run); });
}

void SettingsActions::Write(Saving& saving, const WorkRun& run) {
  const bool isOne = saving.names.size() == 1;
  const auto write = [&](const Snapshot& snapshot) {
    const QByteArray bytes = WriteSnapshot(snapshot);
    if (isOne) return WriteWholeFile(saving.path, bytes);
    const QDir folder(saving.path);
    const QString own = OwnFileIn(folder, snapshot.projector);
    if (!own.isEmpty()) return WriteWholeFile(own, bytes);
    const QString name = FileNameOf(snapshot.projector) + QStringLiteral(".json");
    return WriteNewFile(folder.filePath(name), bytes).error;
  };
  QStringList errors;
  const std::size_t before = saving.saved.size();
  for (const auto& [id, taken] : run.Taken()) {
    if (saving.saved.contains(id)) continue;
    Snapshot snapshot = *taken;
    snapshot.projector = saving.names.at(id);
    if (const QString error = write(snapshot); error.isEmpty()) {
      saving.saved.insert(id);
    } else {
      errors.append(error);
    }
  }
  if (!errors.isEmpty())
    return ShowError(parts_.window, tr("Save Settings"), errors.join(QLatin1Char('\n')));
  if (saving.saved.size() == before) return;  // the work has shown the reason
  int unread = 0;
  for (const WorkLine& line : run.Lines()) unread += line.unread;
  const QString place = QDir::toNativeSeparators(saving.path);
  QString text = isOne ? tr("Settings saved in %1.").arg(place)
                       : tr("Settings of %n projectors saved in %1.", nullptr,
                            static_cast<int>(saving.saved.size()))
                             .arg(place);
  if (unread > 0) text += QLatin1Char(' ') + tr("%n settings could not be read.", nullptr, unread);
  Q_EMIT parts_.work.Reported(text);
}

void SettingsActions::AskForSettings(bool applies) {
  const Rows rows = Selected();
  if (rows.empty()) return;
  AskForFile(parts_.window,
             {.kind = FileQuestion::Kind::Open,
              .title = tr("Open Settings"),
              .suggestion = {},
              .filter = tr("Settings (*.json)")},
             [this, rows, applies](const QString& path) { OpenFile(path, rows, applies); });
}

void SettingsActions::OpenFile(const QString& path, const Rows& rows, bool applies) {
  SettingsFileContents contents = ReadSettingsFile(path);
  if (!contents.error.isEmpty())
    return ShowError(parts_.window, tr("Open Settings"), contents.error);
  const auto wanted = std::make_shared<const Snapshot>(std::move(contents.snapshot));
  Comparison comparison{.title = applies ? tr("Apply Settings") : tr("Compare Settings"),
                        .column = tr("File"),
                        .source = QDir::toNativeSeparators(path),
                        .applies = applies};
  for (const ProjectorRow& row : rows) comparison.Add(row, parts_.watch, wanted);
  auto* dialog = new ComparisonDialog(std::move(comparison), parts_.watch, parts_.work.Texts(),
                                      &parts_.window);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &ComparisonDialog::ApplyWanted, this, [this, path](const WorkPlan& plan) {
    parts_.work.Do(plan, [this, path](const WorkRun& run) { KeepUndo(path, run); });
  });
  dialog->open();
}

void SettingsActions::KeepUndo(const QString& path, const WorkRun& run) {
  if (run.Undo().empty()) return;  // nothing was changed
  const QFileInfo info(path);
  const QString time = QDateTime::currentDateTimeUtc().toString("yyyyMMdd'T'HHmmss'Z'");
  const NewFile made = WriteNewFile(
      info.dir().filePath(QStringLiteral("%1.undo.%2.json").arg(info.completeBaseName(), time)),
      WriteFleetUndo(run.Undo()));
  if (!made.error.isEmpty()) return ShowError(parts_.window, tr("Apply Settings"), made.error);
  Q_EMIT parts_.work.Reported(
      tr("The values before are kept in %1.").arg(QFileInfo(made.path).fileName()));
}
