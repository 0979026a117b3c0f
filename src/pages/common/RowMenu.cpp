#include "pages/common/RowMenu.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QLabel>

#include "pages/common/RowDialog.h"
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

// Asks for a number that the slider takes; the dialog it is asked in may go on or end meanwhile.
void AskForNumber(CSliderCtrl& slider, const QString& caption) {
  auto* question = new QInputDialog(slider.window());
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setInputMode(QInputDialog::IntInput);
  question->setIntRange(slider.minimum(), slider.maximum());
  question->setIntValue(slider.value());
  question->setWindowTitle(caption);
  question->setLabelText(CatalogString(kListCategory, ListText::RangeNote,
                                       std::int64_t{slider.minimum()},
                                       std::int64_t{slider.maximum()}));
  question->setOkButtonText(CatalogString(kCaptionCategory, Caption::Ok));
  question->setCancelButtonText(CatalogString(kCaptionCategory, Caption::Cancel));
  QObject::connect(question, &QInputDialog::intValueSelected, &slider,
                   [&slider](int position) { OperateTo(slider, position); });
  question->open();
}

}  // namespace

void OperateTo(QWidget& control, int position) {
  const auto* dialog = qobject_cast<const CDialog*>(control.window());
  if (dialog == nullptr || dialog->IsBusy() || !control.isVisible()) return;
  if (!CanMoveTo(control, position)) return;
  if (auto* slider = qobject_cast<CSliderCtrl*>(&control)) slider->ScrollTo(position);
  if (auto* list = qobject_cast<CComboBox*>(&control)) list->Pick(position);
  if (auto* check = qobject_cast<QCheckBox*>(&control)) check->click();
}

RowMenu::RowMenu(const Row& row, QWidget* parent) : QMenu(parent) {
  connect(this, &QMenu::aboutToHide, this, &QObject::deleteLater);
  auto* slider = qobject_cast<CSliderCtrl*>(row.control);
  const bool moves = slider != nullptr || qobject_cast<CComboBox*>(row.control) != nullptr ||
                     qobject_cast<QCheckBox*>(row.control) != nullptr;
  if (!row.note.isEmpty()) Tell(row.note);
  if (moves && row.opened) {
    Tell(CatalogString(kListCategory, ListText::WhenOpened,
                       TextAt(*row.control, *row.opened).toStdString()));
  }
  addSeparator();
  if (moves) {
    addAction(ListString(ListText::PutBack), this, &RowMenu::PutBack)
        ->setEnabled(row.opened && CanMoveTo(*row.control, *row.opened));
  }
  if (slider != nullptr) {
    addAction(ListString(ListText::EnterValue), slider, [slider, caption = row.caption] {
      AskForNumber(*slider, caption);
    })->setEnabled(slider->isEnabled());
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

bool RowDialog::ShowMenu(QPoint at, QPoint onScreen) {
  const auto index = RowAt(at);
  if (!index || !ReadingOf(table_.rows[*index], Model())) return false;
  const PageRow& row = table_.rows[*index];
  QWidget* control = GetDlgItem(ControlOf(row));
  const auto position = ShownPosition(*index);
  const auto* label = qobject_cast<const QLabel*>(control);
  auto* menu = new RowMenu({.control = control,
                            .caption = CaptionText(row),
                            .value = label != nullptr ? label->text()
                                     : position       ? TextAt(*control, *position)
                                                      : QString(),
                            .note = control->toolTip(),
                            .opened = bound_[*index].opened},
                           this);
  connect(menu, &RowMenu::PutBack, this, [this, index] { PutBack(*index); });
  menu->popup(onScreen);
  return true;
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
  if (bound.opened) OperateTo(*GetDlgItem(ControlOf(table_.rows[index])), *bound.opened);
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
