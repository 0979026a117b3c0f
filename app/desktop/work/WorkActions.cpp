#include "app/desktop/work/WorkActions.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QTimer>

#include "i18n/Catalog.h"
#include "i18n/SystemLanguage.h"

namespace {

constexpr std::chrono::seconds kUnseen{1};

/// Whether it may take many commands for one projector.
bool IsLong(const WorkPlan& plan) {
  return std::ranges::any_of(plan.parts, [](const WorkPart& part) {
    return !std::holds_alternative<SwitchPower>(part.work) &&
           !std::holds_alternative<SetSetting>(part.work);
  });
}

}  // namespace

WorkActions::WorkActions(WorkDialog::NameOf nameOf, FleetWatch& watch, QWidget& window)
    : QObject(&window), nameOf_(std::move(nameOf)), watch_(watch), window_(window) {}

// Jobs that run use the fleet, which ends after this object. What they have changed so far is kept.
WorkActions::~WorkActions() {
  blockSignals(true);  // nothing is to follow
  for (const WorkDialog* dialog : window_.findChildren<WorkDialog*>()) {
    dialog->Run().disconnect(dialog);
    dialog->Run().Finish();
  }
  qDeleteAll(window_.findChildren<WorkRun*>());
}

const SettingTexts& WorkActions::Texts() const {
  if (!texts_) texts_.emplace(CatalogFolders(), SystemLanguageId());
  return *texts_;
}

void WorkActions::Do(WorkPlan plan, const Then& then) {
  std::size_t count = plan.missing.size() + plan.unknown.size();
  for (const WorkPart& part : plan.parts) count += part.targets.size();
  if (count == 0) return;
  auto* dialog = new WorkDialog(new WorkRun(watch_, Texts(), plan), nameOf_, &window_);
  connect(dialog, &WorkDialog::UndoWanted, this, [this](const WorkPlan& undo) { Do(undo); });
  connect(&dialog->Run(), &WorkRun::Finished, this, [this, then, dialog] {
    if (then) then(dialog->Run());
    Q_EMIT Finished(dialog->Run());
  });
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  if (count > 1) {
    dialog->open();
    if (plan.question.isEmpty()) dialog->Begin();
    return;
  }
  connect(&dialog->Run(), &WorkRun::Finished, dialog, [this, dialog] {
    const WorkLine& line = dialog->Run().Lines().front();
    Q_EMIT Reported(
        tr("%1, %2: %3").arg(nameOf_(line.id), dialog->Run().Plan().title, WorkRun::TextOf(line)));
    if (line.HasFailed() || line.WasStopped()) {
      dialog->open();
    } else {
      dialog->deleteLater();
    }
  });
  dialog->Begin();
  if (IsLong(plan)) {
    QTimer::singleShot(kUnseen, dialog, [dialog] {
      if (dialog->Run().IsRunning()) dialog->open();
    });
  }
}
