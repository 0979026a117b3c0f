#include "toolkit/InputGate.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>

#include "toolkit/TemplateDialog.h"

namespace AdvancedControl {

namespace {

// Instance events that begin an action. Events that end one, such as a release, must reach the
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

// Also finds the dialog of a list that is dropped down.
const TemplateDialog* DialogOf(const QWidget& widget) {
  const QWidget* window = widget.window();
  while (window->windowType() == Qt::Popup && window->parentWidget() != nullptr) {
    window = window->parentWidget()->window();
  }
  return qobject_cast<const TemplateDialog*>(window);
}

}  // namespace

InputGate& InputGate::Instance() {
  static InputGate gate;
  return gate;
}

void InputGate::Close(const TemplateDialog& dialog) {
  auto& closed = Instance().closed_;
  closed.push_back(&dialog);
  if (closed.size() == 1 && qApp != nullptr) qApp->installEventFilter(&Instance());
}

void InputGate::Open(const TemplateDialog& dialog) {
  auto& closed = Instance().closed_;
  std::erase(closed, &dialog);
  if (closed.empty() && qApp != nullptr) qApp->removeEventFilter(&Instance());
}

bool InputGate::eventFilter(QObject* watched, QEvent* event) {
  if (!IsInput(*event) || !watched->isWidgetType()) return false;
  const auto& target = static_cast<const QWidget&>(*watched);
  const TemplateDialog* dialog = DialogOf(target);
  return std::ranges::count(closed_, dialog) > 0 && !dialog->AcceptsInputWhileBusy(target);
}

}  // namespace AdvancedControl
