#include "toolkit/MessageBox.h"

#include <QMessageBox>
#include <QPointer>

#include "toolkit/CDialog.h"

namespace {

int Run(QWidget* owner, QMessageBox::Icon icon, const QString& text,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preselected) {
  QWidget* window = owner != nullptr ? owner->window() : nullptr;
  if (const auto* dialog = qobject_cast<CDialog*>(window); dialog && dialog->IsOrphaned()) {
    return QMessageBox::NoButton;
  }
  const CDialog::Busy busy(window);
  // On the heap: a window that dies while the box is up takes the box with it.
  const QPointer<QMessageBox> box = new QMessageBox(
      icon, window != nullptr ? window->windowTitle() : QString(), text, buttons, window);
  box->setTextFormat(Qt::PlainText);
  box->setDefaultButton(preselected);
  if (window != nullptr) box->setWindowModality(Qt::WindowModal);
  const int answer = box->exec();
  delete box;
  return answer;
}

}  // namespace

void ShowStopMessage(QWidget* owner, const QString& text) {
  Run(owner, QMessageBox::Critical, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool AskYesNo(QWidget* owner, const QString& text) {
  return Run(owner, QMessageBox::Information, text, QMessageBox::Yes | QMessageBox::No,
             QMessageBox::No) == QMessageBox::Yes;
}
