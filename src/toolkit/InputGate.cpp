#include "toolkit/InputGate.h"

#include <utility>

#include <QApplication>
#include <QKeyEvent>

#include "toolkit/TemplateDialog.h"

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
    case QEvent::ShortcutOverride: {
      // With these an open list takes the entry.
      const int key = static_cast<const QKeyEvent&>(event).key();
      return key == Qt::Key_Return || key == Qt::Key_Enter;
    }
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

// Not a modifier, and of a key only the press.
bool IsReported(const QEvent& event) {
  const auto* key = dynamic_cast<const QKeyEvent*>(&event);
  const bool isModifier =
      key != nullptr && key->key() >= Qt::Key_Shift && key->key() <= Qt::Key_ScrollLock;
  return !isModifier && event.type() != QEvent::ShortcutOverride;
}

// Also finds the dialog of a list that is dropped down.
TemplateDialog* DialogOf(const QWidget& widget) {
  QWidget* window = widget.window();
  while (window->windowType() == Qt::Popup && window->parentWidget() != nullptr) {
    window = window->parentWidget()->window();
  }
  return qobject_cast<TemplateDialog*>(window);
}

}  // namespace

InputGate& InputGate::Instance() {
  static InputGate gate;
  return gate;
}

void InputGate::Close(const TemplateDialog& dialog, Dropped dropped) {
  auto& closed = Instance().closed_;
  closed.emplace(&dialog, std::move(dropped));
  if (closed.size() == 1) qApp->installEventFilter(&Instance());
}

void InputGate::Open(const TemplateDialog& dialog) {
  auto& closed = Instance().closed_;
  closed.erase(&dialog);
  if (closed.empty()) qApp->removeEventFilter(&Instance());
}

bool InputGate::eventFilter(QObject* watched, QEvent* event) {
  if (!IsInput(*event) || !watched->isWidgetType()) return false;
  const auto& target = static_cast<const QWidget&>(*watched);
  const auto closed = closed_.find(DialogOf(target));
  if (closed == closed_.end() || closed->first->AcceptsInputWhileBusy(target)) return false;
  // A copy, because the gate may be opened meanwhile.
  if (const Dropped dropped = closed->second; IsReported(*event)) dropped(target);
  return true;
}

}  // namespace AdvancedControl
