#include "toolkit/MessageBox.h"

#include <QMessageBox>

namespace {

int Run(QWidget* owner, QMessageBox::Icon icon, const QString& text,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preselected) {
  QWidget* window = owner != nullptr ? owner->window() : nullptr;
  QMessageBox box(icon, window != nullptr ? window->windowTitle() : QString(), text, buttons,
                  window);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(preselected);
  if (window != nullptr) box.setWindowModality(Qt::WindowModal);
  return box.exec();
}

}  // namespace

void ShowStopMessage(QWidget* owner, const QString& text) {
  Run(owner, QMessageBox::Critical, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool AskYesNo(QWidget* owner, const QString& text) {
  return Run(owner, QMessageBox::Information, text, QMessageBox::Yes | QMessageBox::No,
             QMessageBox::No) == QMessageBox::Yes;
}
