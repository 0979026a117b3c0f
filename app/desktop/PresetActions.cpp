#include "app/desktop/PresetActions.h"

#include <map>
#include <string_view>
#include <unordered_set>
#include <utility>

#include <QAction>
#include <QMenu>

#include "app/desktop/DriftCheck.h"
#include "app/desktop/Modal.h"
#include "app/desktop/PresetEdits.h"
#include "app/desktop/presets/PresetDialog.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "app/desktop/projectors/FleetWatch.h"
#include "app/desktop/work/WorkActions.h"
#include "app/profiles/PresetFolder.h"

namespace {

QString EntryText(QString name) { return name.replace(QLatin1Char('&'), QStringLiteral("&&")); }

}  // namespace

PresetActions::PresetActions(Parts parts)
    : QObject(&parts.window),
      parts_(std::move(parts)),
      presets_(new QAction(tr("P&resets"), this)),
      drift_(new DriftCheck(parts_.document, parts_.watch, parts_.work, parts_.window)),
      edits_(new PresetEdits({.document = parts_.document,
                              .history = parts_.edits,
                              .work = parts_.work,
                              .window = parts_.window})) {
  auto* menu = new QMenu(&parts_.window);
  presets_->setMenu(menu);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] { Fill(*menu); });
  Update(false);
}

void PresetActions::Update(bool any) { presets_->setEnabled(any); }

void PresetActions::Fill(QMenu& menu) {
  menu.clear();
  qDeleteAll(menu.findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
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
  connect(save, &QAction::triggered, this, &PresetActions::Take);
  QAction* manage = menu.addAction(tr("&Manage Presets…"));
  manage->setEnabled(!names.isEmpty());
  connect(manage, &QAction::triggered, edits_, &PresetEdits::Open);
  menu.addSeparator();
  QMenu* wanted = menu.addMenu(tr("Should &Be Like"));
  wanted->setEnabled(parts_.document.HasFile());
  FillWanted(*wanted, [this](const QString& name) { SetWanted(name); });
  if (const QString tag = parts_.tag(); !tag.isEmpty()) {
    wanted->addSeparator();
    FillWanted(*wanted->addMenu(tr("All of %1").arg(EntryText(tag))),
               [this, tag](const QString& name) { SetWantedOfTag(tag, name); });
  }
  connect(menu.addAction(tr("&Compare with What It Should Be")), &QAction::triggered, this,
          [this] { CompareWithWanted(); });
  connect(menu.addAction(tr("&Put Back What It Should Be")), &QAction::triggered, this,
          [this] { PutBack(); });
}

void PresetActions::FillWanted(QMenu& menu, const std::function<void(const QString& name)>& set) {
  connect(menu.addAction(tr("Nothing")), &QAction::triggered, this, [set] { set({}); });
  for (const QString& name : PresetFolder::Names())
    connect(menu.addAction(EntryText(name)), &QAction::triggered, this, [set, name] { set(name); });
}

void PresetActions::Take() {
  const Rows rows = parts_.selected();
  if (rows.size() != 1) return;
  const std::string name = rows.front()->profile.name;
  const FleetTarget target = parts_.watch.TargetOf(rows.front()->profile);
  Q_EMIT parts_.work.Reported(tr("Reading the settings of %1…").arg(QString::fromStdString(name)));
  parts_.work.Do({.title = tr("Save as Preset"),
                  .question = {},
                  .parts = {{.work = TakeSnapshots(), .targets = {target}}}},
                 [this, name, model = target.model](const WorkRun& run) {
                   if (run.Taken().empty()) return;  // the work has shown the reason
                   Snapshot taken = *run.Taken().begin()->second;
                   taken.projector = name;
                   AskWhatToSave(std::move(taken), *model);
                 });
}

void PresetActions::AskWhatToSave(Snapshot taken, const ModelData& model) {
  auto* dialog = new PresetDialog(std::make_shared<const Snapshot>(std::move(taken)),
                                  ModelSettings(model), parts_.work.Texts(), &parts_.window);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    const QString error = PresetFolder::Write(dialog->Name(), dialog->Chosen());
    if (!error.isEmpty()) return ShowError(parts_.window, tr("Save as Preset"), error);
    Q_EMIT parts_.work.Reported(tr("Saved as the preset %1").arg(dialog->Name()));
    Q_EMIT Saved();
    drift_->CheckPreset(dialog->Name().toStdString());
  });
  dialog->open();
}

void PresetActions::Apply(const QString& name) {
  const PresetFolder::Contents preset = PresetFolder::Read(name);
  if (!preset.snapshot) return ShowError(parts_.window, tr("Presets"), preset.error);
  Comparison comparison{.title = tr("Preset %1").arg(name), .column = tr("Preset")};
  for (const ProjectorRow* row : parts_.selected())
    comparison.Add(*row, parts_.watch, preset.snapshot);
  Preview(std::move(comparison));
}

void PresetActions::Preview(Comparison comparison) {
  auto* dialog = new ComparisonDialog(std::move(comparison), parts_.watch, parts_.work.Texts(),
                                      &parts_.window);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &ComparisonDialog::ApplyWanted, this,
          [this](const WorkPlan& plan) { parts_.work.Do(plan); });
  dialog->open();
}

void PresetActions::SetWanted(const QString& name) {
  std::unordered_set<std::string_view> ids;
  for (const ProjectorRow* row : parts_.selected()) ids.insert(row->id);
  std::vector<int> positions;
  const auto& all = parts_.document.Projectors();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (ids.contains(FleetIdOf(all[i]))) positions.push_back(static_cast<int>(i));
  }
  const QString error = parts_.edits.Do(tr("Should Be Like"), -1, [&] {
    return parts_.document.SetMember(
        positions, {QStringLiteral("snapshot"),
                    name.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(name)});
  });
  if (!error.isEmpty()) return ShowError(parts_.window, tr("Should Be Like"), error);
}

void PresetActions::SetWantedOfTag(const QString& tag, const QString& name) {
  parts_.edits.DoAndReport(tr("Should Be Like"), -1,
                           [&] { return parts_.document.SetTagPreset(tag, name); });
}

Comparison PresetActions::WithWanted() {
  Comparison comparison{
      .title = tr("What It Should Be"), .column = tr("Should be"), .areWanted = true};
  std::map<std::string, PresetFolder::Contents> read;
  for (const ProjectorRow* row : parts_.selected()) {
    const std::string& name = row->profile.snapshot;
    if (name.empty()) continue;
    auto [preset, isNew] = read.try_emplace(name);
    if (isNew) preset->second = PresetFolder::Read(QString::fromStdString(name));
    if (!preset->second.snapshot) {
      ShowError(parts_.window, tr("Presets"), preset->second.error);
      return {};
    }
    comparison.Add(*row, parts_.watch, preset->second.snapshot);
  }
  if (comparison.projectors.empty())
    ShowError(parts_.window, tr("Presets"),
              tr("None of the selected projectors has a preset that it should be like."));
  return comparison;
}

void PresetActions::CompareWithWanted() {
  Comparison comparison = WithWanted();
  if (!comparison.projectors.empty()) Preview(std::move(comparison));
}

// Settings that a model does not have are left out; they would count as refused.
void PresetActions::PutBack() {
  const Comparison comparison = WithWanted();
  UsualSettings models;
  ApplySnapshots apply;
  WorkPart part;
  for (const ComparedProjector& projector : comparison.projectors) {
    Snapshot own = *projector.wanted;
    std::erase_if(own.settings, [&](const SavedSetting& saved) {
      const ModelSetting* setting = models.Of(projector.target.model).Find(saved.key);
      return setting == nullptr || !setting->Restorable() || !setting->Allows(saved.value);
    });
    apply.snapshots[projector.target.id] = std::make_shared<const Snapshot>(std::move(own));
    part.targets.push_back(projector.target);
  }
  part.work = std::move(apply);
  const auto count = static_cast<int>(part.targets.size());
  parts_.work.Do({.title = tr("Put Back"),
                  .question = tr("Put back the settings of %n projectors?", nullptr, count),
                  .parts = {std::move(part)}});
}
