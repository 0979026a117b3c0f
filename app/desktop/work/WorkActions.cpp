#include "app/desktop/work/WorkActions.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QAction>
#include <QMenu>

#include "app/desktop/projectors/StateTexts.h"
#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"
#include "settings/PageSets.h"

namespace {

constexpr int kUsualType = 5;
constexpr int kUsualCode = 30;

/// Of a projector on PJLink whose model nobody knows, the usual settings are those of any model:
/// the protocol knows no others.
FleetTarget WithUsualSettings(FleetTarget target) {
  const bool isPjLink = std::holds_alternative<PjLinkAddress>(target.address);
  if (!isPjLink || !target.model ||
      !TabsOf(target.model->DialogType, target.model->ModelCode).empty())
    return target;
  ModelData model = *target.model;
  model.DialogType = kUsualType;
  model.ModelCode = kUsualCode;
  target.model = std::make_shared<const ModelData>(std::move(model));
  return target;
}

}  // namespace

WorkActions::WorkActions(std::function<Rows()> selected, WorkDialog::NameOf nameOf,
                         FleetWatch& watch, QWidget& window)
    : QObject(&window),
      selected_(std::move(selected)),
      nameOf_(std::move(nameOf)),
      watch_(watch),
      window_(window),
      texts_(CatalogFolders(), SystemLanguageId()),
      on_(new QAction(tr("Switch O&n"), this)),
      off_(new QAction(tr("Switch O&ff"), this)),
      power_(new QAction(tr("P&ower"), this)),
      input_(new QAction(tr("&Input"), this)),
      blank_(
          MakeSwitch(tr("&Blank"), "other.blank",
                     {tr("Blank the Picture"), QT_TR_N_NOOP("Blank the picture of %n projectors?")},
                     {tr("Show the Picture"), QT_TR_N_NOOP("Show the picture of %n projectors?")})),
      mute_(
          MakeSwitch(tr("&Mute"), "other.mute",
                     {tr("Mute the Sound"), QT_TR_N_NOOP("Mute the sound of %n projectors?")},
                     {tr("Unmute the Sound"), QT_TR_N_NOOP("Unmute the sound of %n projectors?")})),
      freeze_(MakeSwitch(
          tr("Free&ze"), "other.freeze",
          {tr("Freeze the Picture"), QT_TR_N_NOOP("Freeze the picture of %n projectors?")},
          {tr("Release the Picture"), QT_TR_N_NOOP("Release the picture of %n projectors?")})) {
  connect(on_, &QAction::triggered, this, [this] { SwitchAll(true); });
  connect(off_, &QAction::triggered, this, [this] { SwitchAll(false); });
  auto* powers = new QMenu(&window_);
  powers->addActions({on_, off_});
  power_->setMenu(powers);
  auto* inputs = new QMenu(&window_);
  input_->setMenu(inputs);
  connect(inputs, &QMenu::aboutToShow, this, [this, inputs] { FillInputs(*inputs); });
  Update(false);
}

// Jobs that run use the fleet, which ends after this object.
WorkActions::~WorkActions() { qDeleteAll(window_.findChildren<WorkDialog*>()); }

int WorkActions::SelectedCount() const { return static_cast<int>(selected_().size()); }

QAction* WorkActions::MakeSwitch(const QString& text, const char* key, const Switch& on,
                                 const Switch& off) {
  auto* action = new QAction(text, this);
  auto* menu = new QMenu(&window_);
  const auto add = [&](const Switch& way, const char* value) {
    connect(menu->addAction(way.title), &QAction::triggered, this, [this, way, key, value] {
      Set(way.title, tr(way.question, nullptr, SelectedCount()), key, value);
    });
  };
  add(on, "1");
  add(off, "0");
  action->setMenu(menu);
  return action;
}

void WorkActions::Update(bool any) {
  for (QAction* action : {on_, off_, power_, input_, blank_, mute_, freeze_})
    action->setEnabled(any);
}

void WorkActions::SwitchAll(bool on) {
  WorkPlan plan{.title = on ? tr("Switch On") : tr("Switch Off"),
                .question = on ? tr("Switch on %n projectors?", nullptr, SelectedCount())
                               : tr("Switch off %n projectors?", nullptr, SelectedCount()),
                .parts = {{.work = SwitchPower{.on = on}, .targets = {}}}};
  for (const ProjectorRow* row : selected_())
    plan.parts.front().targets.push_back(watch_.TargetOf(row->profile));
  Do(std::move(plan));
}

// Also in the other language, the value 1 is on.
void WorkActions::Set(const QString& title, const QString& question, const std::string& key,
                      const std::string& text) {
  std::map<std::string, WorkPart> parts;
  WorkPlan plan{.title = title, .question = question, .parts = {}};
  for (const ProjectorRow* row : selected_()) {
    FleetTarget target = WithUsualSettings(watch_.TargetOf(row->profile));
    const std::string own = key.empty() ? settings_.InputKey(target.model) : key;
    if (own.empty() || !settings_.Has(target.model, own)) {
      plan.missing.push_back(target.id);
      continue;
    }
    WorkPart& part = parts[own];
    part.work = SetSetting{.key = own, .text = text};
    part.targets.push_back(std::move(target));
  }
  for (auto& [own, part] : parts) plan.parts.push_back(std::move(part));
  Do(std::move(plan));
}

// The inputs that any of them has.
void WorkActions::FillInputs(QMenu& menu) {
  menu.clear();
  std::vector<std::string> names;
  const auto add = [&names](const std::string& name) {
    if (!name.empty() && std::ranges::find(names, name) == names.end()) names.push_back(name);
  };
  for (const ProjectorRow* row : selected_()) {
    const auto model = WithUsualSettings(watch_.TargetOf(row->profile)).model;
    if (const ModelSetting* input = settings_.Of(model).Input()) {
      for (const ListEntry& entry : input->entries) add(texts_.Entry(*input, entry));
    }
    if (row->state.source && !row->state.source->name.empty())
      add(StateTexts::Source(row->state).toStdString());
  }
  for (const std::string& name : names) {
    const QString text = QString::fromStdString(name);
    QString shown = text;
    connect(menu.addAction(shown.replace(QLatin1Char('&'), QStringLiteral("&&"))),
            &QAction::triggered, this, [this, text, name] {
              Set(tr("Input %1").arg(text),
                  tr("Choose the input %1 on %n projectors?", nullptr, SelectedCount()).arg(text),
                  {}, name);
            });
  }
  if (names.empty()) menu.addAction(tr("No inputs are known"))->setEnabled(false);
}

void WorkActions::Do(WorkPlan plan, const Then& then) {
  std::size_t count = plan.missing.size();
  for (const WorkPart& part : plan.parts) count += part.targets.size();
  if (count == 0) return;
  auto* dialog = new WorkDialog(new WorkRun(watch_, texts_, plan), nameOf_, &window_);
  connect(dialog, &WorkDialog::UndoWanted, this, [this](const WorkPlan& undo) { Do(undo); });
  if (then)
    connect(&dialog->Run(), &WorkRun::Finished, this, [then, dialog] { then(dialog->Run()); });
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  if (count > 1) {
    dialog->open();
    if (plan.question.isEmpty()) dialog->Begin();
    return;
  }
  connect(&dialog->Run(), &WorkRun::Finished, dialog, [this, dialog] {
    const WorkLine& line = dialog->Run().Lines().front();
    Q_EMIT Told(
        tr("%1, %2: %3").arg(nameOf_(line.id), dialog->Run().Plan().title, WorkRun::TextOf(line)));
    if (line.HasFailed()) {
      dialog->open();
    } else {
      dialog->deleteLater();
    }
  });
  dialog->Begin();
}
