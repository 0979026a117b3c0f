#include "pages/common/RowMenus.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include "pages/common/NumberQuestion.h"
#include "pages/common/RowMenu.h"
#include "pages/rows/RowOutcomes.h"
#include "pages/rows/RowTexts.h"
#include "toolkit/CDialog.h"

namespace AdvancedControl {

namespace {

RowMenu::Choice ChoiceOf(bool exists, bool usable) {
  if (!exists) return RowMenu::Choice::Absent;
  return usable ? RowMenu::Choice::Usable : RowMenu::Choice::Grey;
}

}  // namespace

RowMenus::RowMenus(RowHost& host, const PageReader::Rows& rows) : host_(host), rows_(rows) {}

// Some platforms send no context-menu event for the menu key.
bool RowMenus::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::ContextMenu) {
    auto* asked = static_cast<QContextMenuEvent*>(event);
    const QWidget* under = host_.Dialog().childAt(asked->pos());
    asked->setAccepted(
        Open(under != nullptr ? *under : host_.Dialog(), asked->pos(), asked->globalPos()));
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  const auto* key = static_cast<const QKeyEvent*>(event);
  const QWidget* focus = host_.Dialog().focusWidget();
  const bool isMenuKey = key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier;
  if (!isMenuKey || focus == nullptr) return false;
  const QPoint middle = focus->rect().center();
  return Open(*focus, focus->mapTo(&host_.Dialog(), middle), focus->mapToGlobal(middle));
}

RowView* RowMenus::RowAt(const QWidget& under, QPoint at) const {
  SettingsDialog& dialog = host_.Dialog();
  RowView* const own = host_.RowOf(&under);
  if (own != nullptr && own->memory.present) return own;
  RowView* beside = nullptr;
  for (const auto& row : rows_) {
    if (!row->memory.present) continue;
    const int control = ControlOf(row->Row());
    const QWidget& rows = *dialog.GetDlgItem(control)->parentWidget();
    if (!dialog.RowRect(control).contains(rows.mapFrom(&dialog, at))) continue;
    // Rows that scroll may lie behind other parts of the dialog.
    if (&rows != &under && !rows.isAncestorOf(&under)) continue;
    if (beside != nullptr) return nullptr;
    beside = row.get();
  }
  return beside;
}

bool RowMenus::Open(const QWidget& under, QPoint at, QPoint onScreen) {
  RowView* const found = RowAt(under, at);
  if (found == nullptr || !ReadingOf(found->Row(), host_.Dialog().Model())) {
    return OpenForPage(onScreen);
  }
  RowView& row = *found;
  CDialog& dialog = host_.Dialog();
  const auto opened = row.memory.opened;
  const auto wanted = WantedPosition(row);
  auto* menu = new RowMenu(
      {.caption = CaptionText(row.Row()),
       .value = row.Text(),
       .notes = RowNotes::TextOf(row),
       .opened = opened ? row.TextAt(*opened) : QString(),
       .wanted = wanted ? row.TextAt(*wanted) : QString(),
       .putBack =
           ChoiceOf(!std::holds_alternative<StateRow>(row.Row()), opened && row.CanMoveTo(*opened)),
       .setToWanted = ChoiceOf(wanted.has_value(), wanted && row.CanMoveTo(*wanted)),
       .enterValue = ChoiceOf(row.Numbers().has_value(), row.IsUsable() && row.Position())},
      &dialog);
  // Queued until the menu is closed, because the actions may wait for the projector.
  connect(
      menu, &RowMenu::PutBack, &dialog, [this, &row] { PutBack(row); }, Qt::QueuedConnection);
  connect(
      menu, &RowMenu::SetToWanted, &dialog, [this, &row] { SetToWanted(row); },
      Qt::QueuedConnection);
  connect(
      menu, &RowMenu::EnterValue, &dialog, [this, &row] { AskForNumber(row); },
      Qt::QueuedConnection);
  if (QAction* action = host_.PageAction(); action != nullptr) menu->addAction(action);
  menu->popup(onScreen);
  return true;
}

bool RowMenus::OpenForPage(QPoint onScreen) {
  QAction* action = host_.PageAction();
  if (action == nullptr) return false;
  auto* menu = new QMenu(&host_.Dialog());
  connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
  menu->addAction(action);
  menu->popup(onScreen);
  return true;
}

// The dialog may be operated or closed while the question is open.
void RowMenus::AskForNumber(RowView& row) {
  const Range range = row.Numbers().value_or(kUnbounded);
  auto* question =
      new NumberQuestion(CaptionText(row.Row()), range, row.Position().value_or(range.minimum),
                         host_.Dialog().window());
  if (const QString unit = UnitText(row.Row()); !unit.isEmpty()) question->SetUnit(unit);
  question->setWindowTitle(NamedTitle(host_.Dialog(), question->windowTitle()));
  connect(question, &NumberQuestion::Entered, &host_.Dialog(),
          [this, &row](int position) { MoveTo(row, position); });
  question->open();
}

bool RowMenus::IsBusy() const {
  const auto* top = qobject_cast<const CDialog*>(host_.Dialog().window());
  return top == nullptr || top->IsBusy();
}

void RowMenus::MoveTo(RowView& row, int position) {
  if (!IsBusy() && host_.Dialog().isVisible() && row.CanMoveTo(position)) row.MoveTo(position);
}

void RowMenus::PutBack(RowView& row) {
  if (!HasItsSource(row)) return;
  if (row.memory.opened) MoveTo(row, *row.memory.opened);
}

void RowMenus::SetToWanted(RowView& row) {
  if (!HasItsSource(row)) return;
  if (const auto wanted = WantedPosition(row)) MoveTo(row, *wanted);
}

// The values belong to the source for which the row was read. If the projector plays another one
// now, the page is read again instead.
bool RowMenus::HasItsSource(RowView& row) {
  if (IsBusy()) return false;
  const OfSource of = SourceOf(row.Row());
  if (of == OfSource::None) return true;
  {
    const CDialog::Busy busy(&host_.Dialog());
    host_.AskFor(of);
  }
  if (!host_.Dialog().isVisible()) return false;
  if (!row.memory.opened) host_.ReadAgain();
  return row.memory.opened.has_value();
}

}  // namespace AdvancedControl
