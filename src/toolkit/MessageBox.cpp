#include "toolkit/MessageBox.h"

#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

#include "toolkit/Icons.h"
#include "toolkit/OwnedDialog.h"

namespace AdvancedControl {

namespace {

// The box keeps its kind, by which the platform chooses the sound.
void UseIcon(QMessageBox& box, IconName name) {
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"));
  if (label == nullptr) return;  // unreachable: only another version of Qt may have none
  const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
  label->setPixmap(ThemedIcon(name).pixmap({side, side}, box.devicePixelRatio()));
}

int Run(QWidget& owner, QMessageBox::Icon icon, const QString& text,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton preselected,
        const BoxTexts& texts) {
  QWidget* window = owner.window();
  if (const auto* dialog = qobject_cast<OwnedDialog*>(window); dialog && dialog->IsOrphaned()) {
    return QMessageBox::NoButton;
  }
  const OwnedDialog::Busy busy(window);
  // On the heap, because the owner deletes the box if it dies while the box is open.
  const QPointer<QMessageBox> box = new QMessageBox(icon, texts.title, text, buttons, window);
  box->setTextFormat(Qt::PlainText);
  box->setDefaultButton(preselected);
  for (const auto& [button, caption] : {std::pair(QMessageBox::Ok, texts.ok),
                                        {QMessageBox::Yes, texts.yes},
                                        {QMessageBox::No, texts.no}}) {
    if ((buttons & button) && !caption.isEmpty()) box->button(button)->setText(caption);
  }
  UseIcon(*box, icon == QMessageBox::Critical ? IconName::Stop : IconName::Information);
  RemoveForeignButtonIcons(*box);
  box->setLayoutDirection(window->layoutDirection());
  box->setWindowModality(Qt::WindowModal);
  const int answer = box->exec();
  delete box;
  return answer;
}

}  // namespace

void ShowStopMessage(QWidget& owner, const QString& text, const BoxTexts& texts) {
  Run(owner, QMessageBox::Critical, text, QMessageBox::Ok, QMessageBox::Ok, texts);
}

bool AskYesNo(QWidget& owner, const QString& text, const BoxTexts& texts) {
  return Run(owner, QMessageBox::Information, text, QMessageBox::Yes | QMessageBox::No,
             QMessageBox::No, texts) == QMessageBox::Yes;
}

}  // namespace AdvancedControl
