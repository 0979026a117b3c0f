#include "app/desktop/PresetActions.h"

#include <map>
#include <utility>

#include <QAction>
#include <QInputDialog>
#include <QMenu>

#include "app/desktop/Modal.h"
#include "app/desktop/presets/PresetFolder.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/work/WorkActions.h"
#include "toolkit/Icons.h"

namespace {

QString EntryText(QString name) { return name.replace(QLatin1Char('&'), QStringLiteral("&&")); }

}  // namespace

PresetActions::PresetActions(Parts parts)
    : QObject(&parts.window),
      parts_(std::move(parts)),
      presets_(new QAction(tr("P&resets"), this)) {
  auto* menu = new QMenu(&parts_.window);
  presets_->setMenu(menu);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] { Fill(*menu); });
  Update(false);
}

void PresetActions::Update(bool any) { presets_->setEnabled(any); }

void PresetActions::Fill(QMenu& menu) {
  menu.clear();
  const Rows rows = parts_.selected();
  const QStringList names = PresetFolder::Names();
  menu.addSection(tr("Put on the selection"));
  for (const QString& name : names)
    connect(menu.addAction(EntryText(name)), &QAction::triggered, this,
            [this, name] { Apply(name); });
  if (names.isEmpty()) menu.addAction(tr("No presets yet"))->setEnabled(false);
  menu.addSeparator();
  QAction* save = menu.addAction(tr("&Save as Preset…"));
  save->setEnabled(rows.size() == 1);
  connect(save, &QAction::triggered, this, &PresetActions::AskForName);
  menu.addSeparator();
  QMenu* wanted = menu.addMenu(tr("Should &Be Like"));
  wanted->setEnabled(parts_.document.HasFile());
  connect(wanted->addAction(tr("Nothing")), &QAction::triggered, this, [this] { SetWanted({}); });
  for (const QString& name : names)
    connect(wanted->addAction(EntryText(name)), &QAction::triggered, this,
            [this, name] { SetWanted(name); });
  connect(menu.addAction(tr("&Compare with What It Should Be")), &QAction::triggered, this,
          [this] { UseWanted(false); });
  connect(menu.addAction(tr("&Put Back What It Should Be")), &QAction::triggered, this,
          [this] { UseWanted(true); });
}

void PresetActions::AskForName() {
  const Rows rows = parts_.selected();
  if (rows.size() != 1) return;
  const FleetProfile profile = rows.front()->profile;
  auto* question = new QInputDialog(&parts_.window);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setWindowTitle(tr("Save as Preset"));
  question->setLabelText(tr("Name of the preset:"));
  connect(question, &QInputDialog::textValueSelected, this, [this, profile](const QString& typed) {
    QString name = typed.trimmed();
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    if (name.isEmpty() || name.startsWith(QLatin1Char('.'))) return;
    WorkPlan plan{
        .title = tr("Save as Preset"),
        .question = {},
        .parts = {{.work = TakeSnapshots(), .targets = {parts_.watch.TargetOf(profile)}}}};
    parts_.work.Do(std::move(plan), [this, name](const WorkRun& run) { Save(name, run); });
  });
  question->open();
  RemoveForeignButtonIcons(*question);
}

void PresetActions::Save(const QString& name, const WorkRun& run) {
  if (run.Taken().empty()) return;  // the work said why
  const QString error = PresetFolder::Write(name, *run.Taken().begin()->second);
  if (!error.isEmpty()) return ShowError(parts_.window, tr("Save as Preset"), error);
  Q_EMIT parts_.work.Told(tr("Saved as the preset %1").arg(name));
}

void PresetActions::Apply(const QString& name) {
  const PresetFolder::Contents preset = PresetFolder::Read(name);
  if (!preset.snapshot) return ShowError(parts_.window, tr("Presets"), preset.error);
  ApplySnapshots apply;
  WorkPart part;
  for (const ProjectorRow* row : parts_.selected()) {
    part.targets.push_back(parts_.watch.TargetOf(row->profile));
    apply.snapshots[row->id] = preset.snapshot;
  }
  part.work = std::move(apply);
  const auto count = static_cast<int>(part.targets.size());
  parts_.work.Do({.title = tr("Preset %1").arg(name),
                  .question = tr("Put the preset %1 on %n projectors?", nullptr, count).arg(name),
                  .parts = {std::move(part)}});
}

void PresetActions::SetWanted(const QString& name) {
  std::vector<int> positions;
  const auto& all = parts_.document.Projectors();
  for (const ProjectorRow* row : parts_.selected()) {
    for (std::size_t i = 0; i < all.size(); ++i) {
      if (FleetIdOf(all[i]) == row->id) positions.push_back(static_cast<int>(i));
    }
  }
  const QString error = parts_.edits.Do(tr("Should Be Like"), -1, [&] {
    return parts_.document.SetMember(
        positions, {QStringLiteral("snapshot"),
                    name.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(name)});
  });
  if (!error.isEmpty()) return ShowError(parts_.window, tr("Should Be Like"), error);
  if (name.isEmpty()) {
    for (const int position : positions)
      parts_.watch.Projectors().LearnDrift(
          FleetIdOf(parts_.document.Projectors()[static_cast<std::size_t>(position)]), {});
  } else {
    UseWanted(false);
  }
}

void PresetActions::UseWanted(bool putsBack) {
  SnapshotsById snapshots;
  std::map<std::string, PresetFolder::Contents> read;
  WorkPart part;
  for (const ProjectorRow* row : parts_.selected()) {
    const std::string& name = row->profile.snapshot;
    if (name.empty()) continue;
    auto [preset, isNew] = read.try_emplace(name);
    if (isNew) preset->second = PresetFolder::Read(QString::fromStdString(name));
    if (!preset->second.snapshot)
      return ShowError(parts_.window, tr("Presets"), preset->second.error);
    snapshots[row->id] = preset->second.snapshot;
    part.targets.push_back(parts_.watch.TargetOf(row->profile));
  }
  if (part.targets.empty())
    return ShowError(parts_.window, tr("Presets"),
                     tr("None of the selected projectors has a preset that it should be like."));
  if (putsBack) {
    part.work = ApplySnapshots{snapshots};
    const auto count = static_cast<int>(part.targets.size());
    // Afterwards it is known what still differs.
    WorkPart compare{.work = CompareSnapshots{std::move(snapshots)}, .targets = part.targets};
    return parts_.work.Do(
        {.title = tr("Put Back"),
         .question = tr("Put back the settings of %n projectors?", nullptr, count),
         .parts = {std::move(part)}},
        [this, compare](const WorkRun&) {
          parts_.work.Do({.title = tr("Compare"), .question = {}, .parts = {compare}});
        });
  }
  part.work = CompareSnapshots{std::move(snapshots)};
  parts_.work.Do({.title = tr("Compare"), .question = {}, .parts = {std::move(part)}});
}
