#include "toolkit/InputGate.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>

#include "toolkit/InputDialog.h"

namespace AdvancedControl {

namespace {

// Events that begin an action. Events that end one, such as a release, must reach the
// control where it began.
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

bool IsModifier(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock;
}

// Also finds the dialog of a list that is dropped down.
InputDialog* DialogOf(const QWidget& widget) {
  QWidget* window = widget.window();
  while (window->windowType() == Qt::Popup && window->parentWidget() != nullptr) {
    window = window->parentWidget()->window();
  }
  return qobject_cast<InputDialog*>(window);
}

}  // namespace

InputGate& InputGate::Instance() {
  static InputGate gate;
  return gate;
}

void InputGate::Close(const InputDialog& dialog) {
  auto& closed = Instance().closed_;
  closed.push_back(&dialog);
  if (closed.size() == 1 && qApp != nullptr) qApp->installEventFilter(&Instance());
}

void InputGate::Open(const InputDialog& dialog) {
  auto& closed = Instance().closed_;
  std::erase(closed, &dialog);
  if (closed.empty() && qApp != nullptr) qApp->removeEventFilter(&Instance());
}

bool InputGate::eventFilter(QObject* watched, QEvent* event) {
  if (!IsInput(*event) || !watched->isWidgetType()) return false;
  const auto& target = static_cast<const QWidget&>(*watched);
  InputDialog* dialog = DialogOf(target);
  if (std::ranges::count(closed_, dialog) == 0 || dialog->AcceptsInputWhileBusy(target)) {
    return false;
  }
  if (!IsModifier(*event)) Q_EMIT dialog->InputDropped(&target);
  return true;
}

}  // namespace AdvancedControl
