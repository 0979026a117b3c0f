#include "tests/support/DialogDriver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "pages/common/StatusLine.h"
#include "pages/option/CServiceDlg.h"
#include "pages/picture/CColorDlg.h"
#include "pages/picture/CGammaDlg.h"
#include "pages/rows/RowMarks.h"
#include "tests/support/Soon.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/WindowText.h"

std::string NameOf(const QWidget& control) {
  const QString own = control.accessibleName();
  return (own.isEmpty() ? control.accessibleDescription() + ' ' + WindowText(control) : own)
      .toStdString();
}

void DialogDriver::Click(int id) const {
  auto& button = Item<QAbstractButton>(id);
  ASSERT_TRUE(button.isVisible()) << NameOf(button) << " cannot be clicked: it is not there";
  QTest::mouseClick(&button, Qt::LeftButton);
}

void DialogDriver::Choose(int id, int position) const {
  auto& combo = Item<QComboBox>(id);
  ASSERT_TRUE(combo.isVisible() && combo.isEnabled()) << NameOf(combo) << ": not in use";
  ASSERT_LT(position, combo.count());
  combo.setFocus();
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(position, 0));
  QTest::keyClick(combo.view(), Qt::Key_Enter);
}

void DialogDriver::Drag(int id, int position) const {
  auto& slider = Item<CSliderCtrl>(id);
  ASSERT_TRUE(slider.isVisible() && slider.isEnabled()) << NameOf(slider) << ": not in use";
  QPoint at = slider.HandleRect().center();
  QTest::mousePress(&slider, Qt::LeftButton, {}, at);
  // Follows the handle, because the pixel of a position depends on the style.
  for (int guard = 0; slider.sliderPosition() != position && guard < 4 * slider.width(); ++guard) {
    at.rx() += slider.sliderPosition() < position ? 1 : -1;
    QTest::mouseMove(&slider, at);
  }
  EXPECT_EQ(slider.sliderPosition(), position);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, at);
}

void DialogDriver::Press(int id, Qt::Key key) const {
  auto& control = Item<QWidget>(id);
  control.setFocus();
  QTest::keyClick(&control, key);
}

bool Wheel(QWidget& control, int notches, Qt::KeyboardModifiers keys) {
  const QPointF at = control.rect().center();
  QWheelEvent event(at, control.mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, keys,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&control, &event);
  return event.isAccepted();
}

void Activate(QWidget& window) {
  window.show();
  window.activateWindow();
  ASSERT_TRUE(Soon([&] { return QApplication::activeWindow() == &window; })) << "not in front";
}

bool DialogDriver::IsEnabled(int id) const { return Item<QWidget>(id).isEnabled(); }

QString DialogDriver::Text(int id) const {
  const auto& control = Item<QWidget>(id);
  return control.property(control.inherits("QComboBox") ? "currentText" : "text").toString();
}

QStringList DialogDriver::Entries(int id) const {
  const auto& combo = Item<QComboBox>(id);
  QStringList entries;
  for (int i = 0; i < combo.count(); ++i) entries << combo.itemText(i);
  return entries;
}

int DialogDriver::Selected(int id) const { return Item<QComboBox>(id).currentIndex(); }

int DialogDriver::SliderAt(int id) const { return Item<QSlider>(id).value(); }

void Open(CAdvanceDlg& dialog, const CModelInfo2& model,
          std::shared_ptr<ProjectorChannel> projector) {
  dialog.CopyData(&model, 0);
  dialog.Projector().SetChannel(std::move(projector));
  EXPECT_TRUE(dialog.Create());
  Activate(dialog);
}

OpenDialog::OpenDialog(const CModelInfo2& model, int tab,
                       const std::function<void(RecordingChannel&)>& script) {
  if (script) script(*projector_);
  Open(dialog_, model, projector_);
  if (tab != 0) SelectTab(tab);
  projector_->Take();
}

DialogDriver OpenDialog::Driver() { return DialogDriver(*dialog_.ShownPage()); }

void OpenDialog::SelectTab(int tab) { dialog_.findChild<QTabBar*>()->setCurrentIndex(tab); }

std::unique_ptr<RowDialog> MakePopUp(PopUp kind, CAdvanceDlg& host) {
  std::unique_ptr<RowDialog> popUp;
  if (kind == PopUp::Gamma) popUp = std::make_unique<CGammaDlg>(false, &host);
  if (kind == PopUp::ColorTemp) popUp = std::make_unique<CColorDlg>(false, &host);
  if (kind == PopUp::Service) {
    auto service = std::make_unique<CServiceDlg>(&host);
    service->ModelCode = host.Model().ModelCode;
    popUp = std::move(service);
  }
  popUp->projector = &host.Projector();
  return popUp;
}

void Open(CDialog& popUp) {
  ASSERT_TRUE(popUp.Create());
  popUp.show();
}

std::string Menu(CDialog& page, int id, const char* choice, bool overtaken) {
  QWidget& control = *page.GetDlgItem(id);
  const QPoint middle = control.rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, middle, control.mapToGlobal(middle));
  QApplication::sendEvent(&control, &event);
  const QPointer menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  const int before = static_cast<RowDialog&>(page).projector->Sent().commands;
  QStringList lines;
  for (QAction* action : menu != nullptr ? menu->actions() : QList<QAction*>()) {
    if (action->isSeparator()) continue;
    lines << (action->isEnabled() ? action->text() : u'(' + action->text() + u')');
    if (action->text() == QString::fromUtf8(choice)) action->trigger();
  }
  EXPECT_EQ(static_cast<RowDialog&>(page).projector->Sent().commands, before);
  EXPECT_EQ(menu == nullptr, lines.isEmpty());
  if (menu != nullptr) menu->close();
  const CDialog::Busy handler(overtaken ? &page : nullptr);
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(menu == nullptr);
  return lines.join(QStringLiteral(", ")).toStdString();
}

std::string Said(const QWidget& dialog) {
  return dialog.window()->findChild<StatusLine*>()->findChild<QLabel*>()->text().toStdString();
}

std::vector<int> Marked(const QWidget& dialog) {
  std::vector<int> controls;
  for (const auto* marks : dialog.window()->findChildren<RowMarks*>()) {
    for (const RowMarks::Mark& mark : marks->Shown()) {
      if (mark.refused && marks->isVisible()) controls.push_back(mark.control);
    }
  }
  return controls;
}

bool UserOperates(ControlKind kind) {
  using enum ControlKind;
  constexpr ControlKind kOperated[] = {Minus, Plus, Combo, Button, Arrow, Check};
  return std::ranges::find(kOperated, kind) != std::end(kOperated);
}

std::vector<int> OperatedControls(const CDialog& dialog) {
  std::vector<int> operated;
  for (const RowTemplate& row : dialog.Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      if (UserOperates(control.kind)) operated.push_back(control.id);
    }
  }
  return operated;
}

std::vector<QWidget*> UsableControls(const CDialog& dialog) {
  std::vector<QWidget*> usable;
  for (const RowTemplate& row : dialog.Template()->rows) {
    for (const ControlTemplate& control : row.controls) {
      QWidget* widget = dialog.GetDlgItem(control.id);
      if (widget == nullptr || control.kind == ControlKind::Close) continue;
      if (widget->isVisible() && widget->isEnabled()) usable.push_back(widget);
    }
  }
  return usable;
}

int EnvironmentNumber(const char* variable, int otherwise) {
  const QString given = qEnvironmentVariable(variable);
  return given.isEmpty() ? otherwise : given.toInt();
}

MessageBoxes::MessageBoxes(bool yes) : yes_(yes) {
  QObject::connect(&timer_, &QTimer::timeout, [this] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible()) return;
    texts_.push_back(box->text());
    QAbstractButton* button = box->button(QMessageBox::Ok);
    if (button == nullptr) button = box->button(yes_ ? QMessageBox::Yes : QMessageBox::No);
    QTest::mouseClick(button, Qt::LeftButton);
  });
  timer_.start(1);
}

std::vector<QString> MessageBoxes::Take() { return std::exchange(texts_, {}); }

void WhenModal(const char* className, std::function<void(CDialog&)> act) {
  QTimer::singleShot(0, [className, act = std::move(act)] {
    auto* dialog = qobject_cast<CDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->inherits(className)) {
      return ADD_FAILURE() << "no " << className << " came up";
    }
    act(*dialog);
    QTest::keyClick(dialog, Qt::Key_Escape);
  });
}
