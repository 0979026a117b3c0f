#include "toolkit/InputDialog.h"

#include <utility>

#include <QKeyEvent>
#include <QPushButton>

#include "toolkit/InputGate.h"

namespace AdvancedControl {

InputDialog::Busy::Busy(const QWidget* dialog)
    : top_(dialog != nullptr ? qobject_cast<InputDialog*>(dialog->window()) : nullptr) {
  if (top_ == nullptr || ++top_->busy_ > 1) return;
  InputGate::Close(*top_);
  top_->OnBusy();
}

InputDialog::Busy::~Busy() {
  if (top_ == nullptr || --top_->busy_ > 0) return;
  InputGate::Open(*top_);
  top_->OnIdle();
  top_->Return();
  top_->AfterHandlers();
}

void InputDialog::Leave() {
  if (busy_ == 0 || std::exchange(left_, true)) return;
  OnLeave();
}

void InputDialog::Return() {
  if (std::exchange(left_, false)) OnReturn();
}

void InputDialog::keyPressEvent(QKeyEvent* event) {
  if (!isWindow()) {
    event->ignore();
    return;
  }
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (button != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    if (!event->isAutoRepeat()) button->click();
  } else {
    TemplateDialog::keyPressEvent(event);
  }
}

}  // namespace AdvancedControl
