#include "toolkit/MessageBox.h"

#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "toolkit/OwnedDialog.h"

namespace AdvancedControl {

namespace {

int Run(QWidget* owner, QMessageBox::Icon icon, const QString& text,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preselected,
        const BoxTexts& texts) {
  QWidget* window = owner != nullptr ? owner->window() : nullptr;
  if (const auto* dialog = qobject_cast<OwnedDialog*>(window); dialog && dialog->IsOrphaned()) {
    return QMessageBox::NoButton;
  }
  const OwnedDialog::Busy busy(window);
  // On the heap, because the owner deletes the box if it dies while the box is open.
  const QPointer<QMessageBox> box = new QMessageBox(
      icon, texts.title.isEmpty() && window != nullptr ? window->windowTitle() : texts.title, text,
      buttons, window);
  box->setTextFormat(Qt::PlainText);
  box->setDefaultButton(preselected);
  for (const auto& [button, caption] : {std::pair(QMessageBox::Ok, texts.ok),
                                        {QMessageBox::Yes, texts.yes},
                                        {QMessageBox::No, texts.no}}) {
    if ((buttons & button) && !caption.isEmpty()) box->button(button)->setText(caption);
  }
  if (window != nullptr) box->setWindowModality(Qt::WindowModal);
  const int answer = box->exec();
  delete box;
  return answer;
}

}  // namespace

void ShowStopMessage(QWidget* owner, const QString& text, const BoxTexts& texts) {
  Run(owner, QMessageBox::Critical, text, QMessageBox::Ok, QMessageBox::Ok, texts);
}

bool AskYesNo(QWidget* owner, const QString& text, const BoxTexts& texts) {
  return Run(owner, QMessageBox::Information, text, QMessageBox::Yes | QMessageBox::No,
             QMessageBox::No, texts) == QMessageBox::Yes;
}

}  // namespace AdvancedControl
