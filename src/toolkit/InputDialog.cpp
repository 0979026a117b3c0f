#include "toolkit/InputDialog.h"

#include <utility>

#include <QAbstractButton>
#include <QKeyEvent>

#include "toolkit/InputGate.h"

namespace AdvancedControl {

InputDialog::Busy::Busy(const QWidget* dialog)
    : top_(dialog != nullptr ? qobject_cast<InputDialog*>(dialog->window()) : nullptr) {
  if (top_ == nullptr || ++top_->busy_ > 1) return;
  InputGate::Close(*top_,
                   [top = top_](const QWidget& target) { Q_EMIT top->InputDropped(&target); });
  top_->Watch().OnBusy();
}

InputDialog::Busy::~Busy() {
  if (top_ == nullptr || --top_->busy_ > 0) return;
  InputGate::Open(*top_);
  top_->Watch().OnIdle(top_->left_);
  top_->Return();
  top_->AfterHandlers();
}

HandlerWatch& InputDialog::Watch() {
  static HandlerWatch none;
  return none;
}

void InputDialog::Leave() {
  if (busy_ == 0 || std::exchange(left_, true)) return;
  Watch().OnLeave();
}

void InputDialog::Return() {
  if (std::exchange(left_, false)) Watch().OnReturn();
}

void InputDialog::keyPressEvent(QKeyEvent* event) {
  if (!isWindow()) {
    event->ignore();
    return;
  }
  auto* button = qobject_cast<QAbstractButton*>(focusWidget());
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && button != nullptr && !button->isCheckable()) {
    if (!event->isAutoRepeat()) button->click();
  } else {
    TemplateDialog::keyPressEvent(event);
  }
}

}  // namespace AdvancedControl
