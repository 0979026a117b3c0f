#include "toolkit/InputGate.h"

#include <QApplication>
#include <QKeyEvent>

#include "toolkit/CDialog.h"

namespace {

// What begins something. What ends it, as a release does, must reach the control that has begun.
bool IsInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::Shortcut:
      return true;
    case QEvent::KeyPress:
      break;
    default:
      return false;
  }
  switch (static_cast<const QKeyEvent&>(event).key()) {
    case Qt::Key_Escape:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return false;
    default:
      return true;
  }
}

// Also of a list that has dropped down.
const CDialog* DialogOf(const QWidget& widget) {
  const QWidget* window = widget.window();
  while (window->windowType() == Qt::Popup && window->parentWidget() != nullptr) {
    window = window->parentWidget()->window();
  }
  return qobject_cast<const CDialog*>(window);
}

}  // namespace

InputGate& InputGate::Only() {
  static InputGate gate;
  return gate;
}

void InputGate::Close() {
  if (++Only().busyDialogs_ == 1 && qApp != nullptr) qApp->installEventFilter(&Only());
}

void InputGate::Open() {
  if (--Only().busyDialogs_ == 0 && qApp != nullptr) qApp->removeEventFilter(&Only());
}

bool InputGate::eventFilter(QObject* watched, QEvent* event) {
  if (!IsInput(*event) || !watched->isWidgetType()) return false;
  const auto& target = static_cast<const QWidget&>(*watched);
  const CDialog* dialog = DialogOf(target);
  return dialog != nullptr && dialog->busy_ > 0 && !dialog->Takes(target);
}
