#include "toolkit/WindowText.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>

namespace AdvancedControl {

QString WindowText(const QWidget& window) {
  if (const auto* label = qobject_cast<const QLabel*>(&window)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&window)) return button->text();
  if (const auto* dialog = qobject_cast<const QDialog*>(&window)) return dialog->windowTitle();
  return {};
}

void SetWindowText(QWidget& window, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(&window)) {
    label->setText(text);
  } else if (auto* button = qobject_cast<QAbstractButton*>(&window)) {
    button->setText(text);
  } else if (auto* dialog = qobject_cast<QDialog*>(&window)) {
    dialog->setWindowTitle(text);
  }
}

}  // namespace AdvancedControl
