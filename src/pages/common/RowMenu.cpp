#include "pages/common/RowMenu.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>

#include "pages/common/NumberQuestion.h"
#include "pages/common/RowDialog.h"
#include "settings/RowUse.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"

namespace {

QString ListString(int number) { return CatalogString(kListCategory, number); }

QString SwitchText(bool on) { return ListString(on ? ListText::On : ListText::Off); }

QString TextAt(const QWidget& control, int position) {
  if (const auto* list = qobject_cast<const CComboBox*>(&control)) return list->itemText(position);
  if (qobject_cast<const QCheckBox*>(&control) != nullptr) return SwitchText(position != 0);
  return QString::number(position);
}

bool CanMoveTo(const QWidget& control, int position) {
  if (!control.isEnabled()) return false;
  if (const auto* slider = qobject_cast<const CSliderCtrl*>(&control)) {
    return position != slider->value() && position >= slider->minimum() &&
           position <= slider->maximum();
  }
  if (const auto* list = qobject_cast<const CComboBox*>(&control)) {
    return position != list->currentIndex() && position >= 0 && position < list->count();
  }
  const auto* check = qobject_cast<const QCheckBox*>(&control);
  return check != nullptr && check->isChecked() != (position != 0);
}

// Moves a row's control to a position as a user does.
void OperateTo(QWidget& control, int position) {
  if (!CanMoveTo(control, position)) return;
  if (auto* slider = qobject_cast<CSliderCtrl*>(&control)) slider->ScrollTo(position);
  if (auto* list = qobject_cast<CComboBox*>(&control)) list->Pick(position);
  if (auto* check = qobject_cast<QCheckBox*>(&control)) check->click();
}

// A row that only two buttons move.
const ValueRow* SteppedRow(const PageRow& row) {
  const auto* value = std::get_if<ValueRow>(&row);
  return value != nullptr && value->ids.slider == 0 ? value : nullptr;
}

}  // namespace

RowMenu::RowMenu(const Row& row, QWidget* parent) : QMenu(parent) {
  connect(this, &QMenu::aboutToHide, this, &QObject::deleteLater);
  if (!row.note.isEmpty()) Tell(row.note);
  if (!row.opened.isEmpty()) {
    Tell(CatalogString(kListCategory, ListText::WhenOpened, row.opened.toStdString()));
  }
  addSeparator();
  if (row.putBack != Choice::Absent) {
    addAction(ListString(ListText::PutBack), this, &RowMenu::PutBack)
        ->setEnabled(row.putBack == Choice::Usable);
  }
  if (row.enterValue != Choice::Absent) {
    addAction(ListString(ListText::EnterValue), this, &RowMenu::EnterValue)
        ->setEnabled(row.enterValue == Choice::Usable);
  }
  const QString copied =
      row.value.isEmpty() ? row.caption : row.caption + QStringLiteral(": ") + row.value;
  addAction(ListString(ListText::Copy), [copied] { QApplication::clipboard()->setText(copied); });
}

void RowMenu::Tell(const QString& text) { addAction(text)->setEnabled(false); }

std::optional<std::size_t> RowDialog::RowAt(QPoint at) {
  const QWidget* child = childAt(at);
  std::optional<std::size_t> beside;
  for (std::size_t i = 0; i < bound_.size(); ++i) {
    if (!bound_[i].present) continue;
    for (const int id : ControlsOf(table_.rows[i])) {
      if (child != nullptr && GetDlgItem(id) == child) return i;
    }
    if (!RowRect(ControlOf(table_.rows[i])).contains(at)) continue;
    if (beside) return {};  // it cannot be told which of them is meant
    beside = i;
  }
  return beside;
}

std::optional<int> RowDialog::ShownPosition(std::size_t index) const {
  const PageRow& row = table_.rows[index];
  if (std::holds_alternative<ValueRow>(row)) return bound_[index].value.Number();
  const QWidget* control = GetDlgItem(ControlOf(row));
  if (const auto* check = qobject_cast<const QCheckBox*>(control)) return check->isChecked();
  const auto* list = qobject_cast<const CComboBox*>(control);
  return list != nullptr && list->currentIndex() >= 0 ? std::optional(list->currentIndex())
                                                      : std::nullopt;
}

bool RowDialog::CanMoveTo(std::size_t index, int position) const {
  const ValueRow* stepped = SteppedRow(table_.rows[index]);
  if (stepped == nullptr) return ::CanMoveTo(*GetDlgItem(ControlOf(table_.rows[index])), position);
  const auto number = bound_[index].value.Number();
  return GetDlgItem(stepped->ids.plus)->isEnabled() && number && *number != position;
}

Range RowDialog::EnteredRange(const ValueRow& row, const Bound& bound) const {
  return SteppedRow(row) != nullptr ? StepBounds(row, Model(), kUnbounded) : bound.value.Bounds();
}

bool RowDialog::ShowMenu(QPoint at, QPoint onScreen) {
  const auto index = RowAt(at);
  if (!index || !ReadingOf(table_.rows[*index], Model())) return false;
  const PageRow& row = table_.rows[*index];
  QWidget* control = GetDlgItem(ControlOf(row));
  const auto position = ShownPosition(*index);
  const std::optional<int> opened = bound_[*index].opened;
  const auto choice = [](bool exists, bool usable) {
    return !exists  ? RowMenu::Choice::Absent
           : usable ? RowMenu::Choice::Usable
                    : RowMenu::Choice::Grey;
  };
  const auto* label = qobject_cast<const QLabel*>(control);
  const auto* number = std::get_if<ValueRow>(&row);
  const bool isOperable = number != nullptr && GetDlgItem(number->ids.plus)->isEnabled() &&
                          bound_[*index].value.Number();
  auto* menu =
      new RowMenu({.caption = CaptionText(row),
                   .value = label != nullptr ? label->text()
                            : position       ? TextAt(*control, *position)
                                             : QString(),
                   .note = control->toolTip(),
                   .opened = opened ? TextAt(*control, *opened) : QString(),
                   .putBack = choice(label == nullptr, opened && CanMoveTo(*index, *opened)),
                   .enterValue = choice(number != nullptr, isOperable)},
                  this);
  // Not before the menu has ended: what they start may wait for the projector.
  connect(
      menu, &RowMenu::PutBack, this, [this, index] { PutBack(*index); }, Qt::QueuedConnection);
  connect(
      menu, &RowMenu::EnterValue, this, [this, index] { AskForNumber(*index); },
      Qt::QueuedConnection);
  menu->popup(onScreen);
  return true;
}

// The dialog may go on or end while this is asked in it.
void RowDialog::AskForNumber(std::size_t index) {
  const auto& row = std::get<ValueRow>(table_.rows[index]);
  const Range range = EnteredRange(row, bound_[index]);
  auto* question = new NumberQuestion(
      CaptionText(row), range, bound_[index].value.Number().value_or(range.minimum), window());
  connect(question, &NumberQuestion::Entered, this,
          [this, index](int position) { MoveTo(index, position); });
  question->open();
}

// The row's own control moves as under a hand, so that all that follows is the same.
void RowDialog::MoveTo(std::size_t index, int position) {
  const auto* top = qobject_cast<const CDialog*>(window());
  if (top == nullptr || top->IsBusy() || !isVisible()) return;
  if (const ValueRow* stepped = SteppedRow(table_.rows[index])) {
    StepTo(*stepped, bound_[index].value, position);
  } else {
    OperateTo(*GetDlgItem(ControlOf(table_.rows[index])), position);
  }
}

void RowDialog::PutBack(std::size_t index) {
  const auto* top = qobject_cast<const CDialog*>(window());
  if (top != nullptr && top->IsBusy()) return;
  const Bound& bound = bound_[index];
  if (const OfSource of = SourceOf(table_.rows[index]); of != OfSource::None) {
    {
      const Busy busy(this);
      AskFor(of);
    }
    if (!isVisible()) return;
    if (!bound.opened) {
      ReadAgain();  // of another source now: what was shown is its predecessor's
      return;
    }
  }
  if (bound.opened) MoveTo(index, *bound.opened);
}

void RowDialog::contextMenuEvent(QContextMenuEvent* event) {
  event->setAccepted(ShowMenu(event->pos(), event->globalPos()));
}

// Some platforms know only the menu key.
void RowDialog::keyPressEvent(QKeyEvent* event) {
  const QWidget* focus = focusWidget();
  if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier && focus != nullptr) {
    const QPoint middle = focus->rect().center();
    if (ShowMenu(focus->mapTo(this, middle), focus->mapToGlobal(middle))) return;
  }
  SettingsDialog::keyPressEvent(event);
}
