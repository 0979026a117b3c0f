#include "app/desktop/work/UsualActions.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QAction>
#include <QMenu>

#include "app/desktop/projectors/StateTexts.h"
#include "app/desktop/work/WorkActions.h"

// Settings take the value 1 for on, whatever the language.
UsualActions::UsualActions(std::function<Rows()> selected, WorkActions& work, FleetWatch& watch,
                           QWidget& window)
    : QObject(&window),
      selected_(std::move(selected)),
      work_(work),
      watch_(watch),
      window_(window),
      on_(new QAction(tr("Switch O&n"), this)),
      off_(new QAction(tr("Switch O&ff"), this)),
      power_(new QAction(tr("Po&wer"), this)),
      input_(new QAction(tr("&Input"), this)),
      blank_(MakeSwitch(
          tr("&Blank"),
          {{tr("Blank the Picture"),
            [](int count) { return tr("Blank the picture of %n projectors?", nullptr, count); },
            "other.blank", "1"},
           {tr("Show the Picture"),
            [](int count) { return tr("Show the picture of %n projectors?", nullptr, count); },
            "other.blank", "0"}})),
      mute_(MakeSwitch(
          tr("&Mute"),
          {{tr("Mute the Sound"),
            [](int count) { return tr("Mute the sound of %n projectors?", nullptr, count); },
            "other.mute", "1"},
           {tr("Unmute the Sound"),
            [](int count) { return tr("Unmute the sound of %n projectors?", nullptr, count); },
            "other.mute", "0"}})),
      freeze_(MakeSwitch(
          tr("Free&ze"),
          {{tr("Freeze the Picture"),
            [](int count) { return tr("Freeze the picture of %n projectors?", nullptr, count); },
            "other.freeze", "1"},
           {tr("Release the Picture"),
            [](int count) { return tr("Release the picture of %n projectors?", nullptr, count); },
            "other.freeze", "0"}})) {
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

QAction* UsualActions::MakeSwitch(const QString& text, const std::vector<Choice>& choices) {
  auto* action = new QAction(text, this);
  auto* menu = new QMenu(&window_);
  for (const Choice& choice : choices)
    connect(menu->addAction(choice.title), &QAction::triggered, this,
            [this, choice] { Set(choice); });
  action->setMenu(menu);
  return action;
}

void UsualActions::Update(bool any) {
  for (QAction* action : {on_, off_, power_, input_, blank_, mute_, freeze_})
    action->setEnabled(any);
}

void UsualActions::SwitchAll(bool on) {
  const Rows rows = selected_();
  const int count = static_cast<int>(rows.size());
  WorkPlan plan{.title = on ? tr("Switch On") : tr("Switch Off"),
                .question = on ? tr("Switch on %n projectors?", nullptr, count)
                               : tr("Switch off %n projectors?", nullptr, count),
                .parts = {{.work = SwitchPower{.on = on}, .targets = {}}}};
  for (const ProjectorRow* row : rows)
    plan.parts.front().targets.push_back(watch_.TargetOf(row->profile));
  work_.Do(std::move(plan));
}

void UsualActions::Set(const Choice& choice) {
  const Rows rows = selected_();
  std::map<std::string, WorkPart> parts;
  WorkPlan plan{.title = choice.title,
                .question = choice.question(static_cast<int>(rows.size())),
                .parts = {}};
  for (const ProjectorRow* row : rows) {
    FleetTarget target = watch_.TargetOf(row->profile);
    const std::string own = choice.key.empty() ? settings_.InputKey(target.model) : choice.key;
    if (own.empty() || !settings_.Has(target.model, own)) {
      plan.missing.push_back(target.id);
      continue;
    }
    WorkPart& part = parts[own];
    part.work = SetSetting{.key = own, .text = choice.value};
    part.targets.push_back(std::move(target));
  }
  for (auto& [own, part] : parts) plan.parts.push_back(std::move(part));
  work_.Do(std::move(plan));
}

// The inputs that any of them has.
void UsualActions::FillInputs(QMenu& menu) {
  menu.clear();
  std::vector<std::string> names;
  const auto add = [&names](const std::string& name) {
    if (!name.empty() && std::ranges::find(names, name) == names.end()) names.push_back(name);
  };
  for (const ProjectorRow* row : selected_()) {
    const auto model = watch_.TargetOf(row->profile).model;
    const ModelSetting& input = settings_.Of(model).Input();
    for (const ListEntry& entry : input.entries) add(work_.Texts().Entry(input, entry));
    if (row->state.source && !row->state.source->name.empty())
      add(StateTexts::Source(row->state).toStdString());
  }
  for (const std::string& name : names) {
    const QString text = QString::fromStdString(name);
    const Choice choice{
        .title = tr("Input %1").arg(text),
        .question =
            [text](int count) {
              return tr("Choose the input %1 on %n projectors?", nullptr, count).arg(text);
            },
        .key = {},
        .value = name};
    QString shown = text;
    connect(menu.addAction(shown.replace(QLatin1Char('&'), QStringLiteral("&&"))),
            &QAction::triggered, this, [this, choice] { Set(choice); });
  }
  if (names.empty()) menu.addAction(tr("No inputs are known"))->setEnabled(false);
}
