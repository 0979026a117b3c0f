#include <tuple>

#include <QAbstractItemView>
#include <QApplication>
#include <QPen>
#include <QStyleOption>
#include <QTest>
#include <QWindow>

#include "tests/support/Soon.h"
#include "tests/toolkit/SampleDialog.h"
#include "toolkit/Contrast.h"
#include "toolkit/FocusPen.h"
#include "toolkit/IsolatedText.h"

namespace {

TEST_F(DialogTest, ASliderReportsOnlyTheEndOfAMove) {
  auto& slider = dialog.Item<CSliderCtrl>(4);
  slider.setValue(3);
  EXPECT_TRUE(dialog.scrolls.empty()) << "moved by program";
  for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::RightButton})
    QTest::mouseClick(&slider, button, {}, QPoint(4, slider.HandleRect().center().y()));
  EXPECT_EQ(slider.value(), 3) << "only the left button moves it";

  driver.Drag(4, 7);
  EXPECT_EQ(dialog.scrolls, std::vector{7}) << "one report a drag, at its end";

  slider.setFocus();
  QTest::keyPress(&slider, Qt::Key_Left);
  QTest::keyPress(&slider, Qt::Key_Left);
  QKeyEvent repeat(QEvent::KeyRelease, Qt::Key_Left, {}, {}, true);
  QApplication::sendEvent(&slider, &repeat);
  EXPECT_EQ(dialog.scrolls.size(), 1U) << "the key is still down";
  QTest::keyRelease(&slider, Qt::Key_Left);
  EXPECT_EQ(dialog.scrolls, (std::vector{7, 5}));

  QTest::keyPress(&slider, Qt::Key_Right);
  dialog.GetDlgItem(10)->setFocus();
  EXPECT_EQ(dialog.scrolls, (std::vector{7, 5, 6})) << "focus lost in mid-step";

  slider.setFocus();
  QTest::keyPress(&slider, Qt::Key_Right);
  slider.setEnabled(false);
  slider.setEnabled(true);
  QTest::keyRelease(&slider, Qt::Key_Right);
  EXPECT_EQ(dialog.scrolls.size(), 3U) << "taken out of use in mid-step";

  QTest::mouseClick(&slider, Qt::LeftButton, {},
                    QPoint(slider.width() - 4, slider.HandleRect().center().y()));
  ASSERT_EQ(dialog.scrolls.size(), 4U) << "a click in the groove";
  EXPECT_GT(dialog.scrolls.back(), 6);
}

TEST_F(DialogTest, ADialogThatDiesWhileAKeyIsDownReportsNothing) {
  auto* dying = new SampleDialog;
  dying->Open();
  bool reported = false;
  dying->whenDone = [&reported] { reported = true; };
  dying->GetDlgItem(4)->setFocus();
  QTest::keyPress(dying->GetDlgItem(4), Qt::Key_Right);
  delete dying;
  EXPECT_FALSE(reported);
}

TEST_F(DialogTest, DeleteLaterWaitsForTheRunningHandler) {
  for (const bool running : {true, false}) {
    const QPointer<SampleDialog> dying = new SampleDialog;
    dying->Open();
    dying->whenDone = [&dying] {
      dying->deleteLater();
      QTest::qWait(5);
      ASSERT_TRUE(dying != nullptr && dying->IsLeft()) << "its handler is still running";
    };
    running ? DialogDriver(*dying).Click(10) : dying->deleteLater();
    EXPECT_TRUE(Soon([&] { return dying == nullptr; }));
  }
}

TEST_F(DialogTest, TheWheelNeedsTheFocus) {
  EXPECT_EQ(driver.Selected(9), -1) << "a list shows nothing before something is selected";
  dialog.Item<CComboBox>(9).Select(0);
  dialog.GetDlgItem(10)->setFocus();
  EXPECT_FALSE(driver.Wheel(4, 1) || driver.Wheel(9, -1));
  dialog.GetDlgItem(4)->setFocus();
  EXPECT_TRUE(driver.Wheel(4, 1));
  driver.Item<CSliderCtrl>(4).setValue(99);
  EXPECT_TRUE(driver.Wheel(4, 1)) << "also at the end";
  EXPECT_EQ(dialog.scrolls, std::vector{2});
  dialog.GetDlgItem(9)->setFocus();
  EXPECT_FALSE(driver.Wheel(9, -1));
  EXPECT_EQ(driver.Selected(9), 0) << "a closed list also needs Ctrl";
  driver.Wheel(9, -1, Qt::ControlModifier);
  EXPECT_TRUE(driver.Selected(9) == 1 && dialog.choices == 1);
}

TEST_F(DialogTest, AListReportsChoicesOfTheUserOnly) {
  auto& combo = dialog.Item<CComboBox>(9);
  combo.Select(2);
  combo.Select(7);
  EXPECT_TRUE(combo.currentIndex() == -1 && dialog.choices == 0);
  driver.Choose(9, 1);
  driver.Choose(9, 1);
  EXPECT_EQ(dialog.choices, 2) << "choosing the shown entry again sends it again";
  driver.Press(9, Qt::Key_Down);
  EXPECT_EQ(dialog.choices, 3);
  combo.clear();
  combo.Add(QStringLiteral("Five"), 5);
  EXPECT_EQ(combo.SelectedValue(), std::nullopt);
  combo.Add(QStringLiteral("Six"), 6);
  EXPECT_TRUE(combo.SelectValue(6) && !combo.SelectValue(7));
  EXPECT_EQ(combo.SelectedValue(), 6);
}

TEST_F(DialogTest, EnterPressesTheFocusedButtonOnlyAndEscCloses) {
  EXPECT_EQ(driver.Text(14), "&Close");
  for (const int id : {9, 4}) driver.Press(id, Qt::Key_Return);
  EXPECT_EQ(dialog.presses, 0);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) driver.Press(10, key);
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
  QApplication::sendEvent(dialog.GetDlgItem(10), &held);
  EXPECT_EQ(dialog.presses, 3) << "once for each press";
  EXPECT_TRUE(dialog.isVisible());
  driver.Press(9, Qt::Key_Escape);
  EXPECT_TRUE(!dialog.isVisible() && dialog.destroyed == 1);
}

TEST_F(DialogTest, RunsModallySeveralTimes) {
  SampleDialog modal, named;
  named.Open();
  dialog.move(30, 40);
  for (int run = 1; run <= 2; ++run) {
    Activate(dialog);
    if (run == 2) modal.BelongTo(&named);
    const SampleDialog& owner = run == 1 ? dialog : named;
    QTimer::singleShot(0, &modal, [&] {
      EXPECT_EQ(modal.Owner(), &owner) << "it belongs to the dialog in use, unless one is named";
      EXPECT_EQ(modal.parentWidget(), nullptr) << "but stays its creator's";
      EXPECT_EQ(modal.windowHandle()->transientParent(), owner.windowHandle());
      EXPECT_EQ(modal.pos(), owner.geometry().topLeft()) << "as large, in its middle";
      EXPECT_EQ(modal.GetDlgItem(10)->accessibleName(), "Mode Do");
      DialogDriver(modal).Click(10);
      run == 2 ? DialogDriver(modal).Click(14) : modal.hide();
    });
    EXPECT_EQ(modal.DoModal(), run == 2 ? QDialog::Accepted : QDialog::Rejected);
    EXPECT_TRUE(modal.presses == run && modal.destroyed == run);
    EXPECT_EQ(modal.Owner(), run == 1 ? nullptr : &named);
  }
}

TEST_F(DialogTest, CanBeOpenedAgainWhenItsHostIsToldOfTheEnd) {
  auto owner = std::make_unique<QWidget>();
  dialog.BelongTo(owner.get());
  QObject::connect(&dialog, &QDialog::accepted, owner.get(), [this] {
    EXPECT_FALSE(dialog.isModal());
    dialog.CreateShown();
  });
  dialog.accept();
  EXPECT_TRUE(dialog.isVisible() && dialog.destroyed == 1);
  QTimer::singleShot(0, &dialog, &QDialog::accept);
  EXPECT_EQ(dialog.DoModal(), QDialog::Accepted);
  EXPECT_TRUE(dialog.isVisible() && dialog.destroyed == 3);
  EXPECT_FALSE(dialog.isModal()) << "it was opened beside its host's windows";
  owner.reset();
  EXPECT_TRUE(!dialog.isVisible() && dialog.destroyed == 4);
}

TEST_F(DialogTest, ADragCatchesAtZeroAndKeysDoNot) {
  auto& slider = dialog.Item<CSliderCtrl>(4);
  slider.SetRange(-500, 500, 100);  // less than a pixel a position
  const QPoint start = slider.HandleRect().center();
  QTest::mousePress(&slider, Qt::LeftButton, {}, start);
  const auto dragTo = [&](int apart) {
    QTest::mouseMove(&slider, start + QPoint(apart, 0));
    return slider.value();
  };
  EXPECT_GT(dragTo(4), 0);
  EXPECT_EQ(dragTo(3), 0);
  EXPECT_EQ(dragTo(-2), 0);
  EXPECT_LT(dragTo(-20), 0);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, start);
  slider.setValue(0);
  slider.setFocus();
  QTest::keyClick(&slider, Qt::Key_Right);
  EXPECT_EQ(slider.value(), 1) << "keys reach every position";
  QTest::mouseMove(&slider, start);
  EXPECT_EQ(slider.value(), 1) << "not dragged";
  slider.SetRange(0, 500, 100);
  QTest::mousePress(&slider, Qt::LeftButton, {}, slider.HandleRect().center());
  QTest::mouseMove(&slider, slider.HandleRect().center() + QPoint(2, 0));
  EXPECT_GT(slider.value(), 0) << "nothing to catch at";
}

TEST(Contrast, IsThatOfTheirLuminances) {
  for (const auto& [grey, onWhite, onBlack] : {std::tuple{119, 4.48, 4.69}, {10, 19.8, 1.06}}) {
    const QColor color(grey, grey, grey);
    EXPECT_NEAR(ContrastOf(color, Qt::white), onWhite, .01);
    EXPECT_NEAR(ContrastOf(Qt::black, color), onBlack, .01);
    EXPECT_NEAR(ContrastOf(Qt::white, ReadableOn(Qt::white, color, 4.5)), std::max(onWhite, 4.82),
                .31);
    EXPECT_GE(ContrastOf(color, ReadableOn(color, Qt::white, 4.5)), 4.5);
    EXPECT_NEAR(ContrastOf(Qt::black, ReadableOn(Qt::black, color, 4.5)), 4.82, .31);
  }
}

TEST_F(DialogTest, DisabledTextsAndTheFocusCanBeSeenWithAnyPalette) {
  const QPalette before = QApplication::palette();
  for (const QColor& color : {QColor(239, 239, 239), QColor(Qt::white), QColor(53, 53, 53)}) {
    dialog.setVisible(color.lightness() > 99);  // a hidden one looks right when it is shown
    QPalette plain(color);
    plain.setColor(QPalette::Highlight, color);
    QApplication::setPalette(plain);
    QCoreApplication::processEvents();
    dialog.show();
    ASSERT_EQ(dialog.palette().color(QPalette::Window), color);
    for (const auto& [text, background] : {std::pair(QPalette::WindowText, QPalette::Window),
                                           {QPalette::ButtonText, QPalette::Button},
                                           {QPalette::Text, QPalette::Base}}) {
      const QPalette palette = dialog.GetDlgItem(10)->palette();
      const QColor disabled = palette.color(QPalette::Disabled, text);
      EXPECT_GE(ContrastOf(disabled, palette.color(QPalette::Disabled, background)),
                color.lightness() < 128 ? 4.5 : 3.5);
      EXPECT_NE(disabled, palette.color(QPalette::Active, text)) << "still looks disabled";
    }
    EXPECT_GE(ContrastOf(FocusPen(dialog).color(), color), 3);
  }
  QApplication::setPalette(before);
}

struct DrawnList : CComboBox {
  using CComboBox::initStyleOption;
};

TEST_F(DialogTest, AListIsAsWideAsItsLongestEntryUpToALimit) {
  QApplication::setLayoutDirection(Qt::RightToLeft);
  DrawnList longer;
  longer.setStyleSheet("* { combobox-popup: 0; }");  // with it, Qt would widen the list
  EXPECT_NE(dynamic_cast<IsolatedTexts*>(longer.itemDelegate()), nullptr);
  for (const int letters : {20, 200}) {
    longer.clear();
    longer.Add(QString(letters, QLatin1Char('n')));
    longer.Select(0);
    longer.UpdateWidth();
    const int needed = longer.fontMetrics().horizontalAdvance(longer.itemText(0));
    longer.resize(longer.sizeHint());
    EXPECT_EQ(longer.width() > needed, letters == 20);
    EXPECT_LT(longer.width(), 500);
    QStyleOptionComboBox option;
    longer.initStyleOption(&option);
    EXPECT_EQ(option.currentText.contains(u'…'), letters == 200);
    EXPECT_TRUE(option.currentText.startsWith(QChar(0x2068)));
    longer.showPopup();
    EXPECT_GE(longer.view()->viewport()->width(), needed) << "shows it whole";
  }
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST(Dialog, WithoutATemplateStaysEmpty) {
  CDialog dialog(12345);
  EXPECT_DEATH(dialog.Item<QWidget>(1), "dialog 12345 has no control 1 ");
  EXPECT_TRUE(!dialog.Create() && dialog.DoModal() == -1);
  EXPECT_TRUE(dialog.GetDlgItem(1) == nullptr && !dialog.DialogSize().isValid());
}

TEST(ResourceChain, SearchesTheCurrentModuleFirst) {
  static constexpr DialogTemplate other{.number = 900};
  static constexpr const DialogTemplate* others[] = {&other};
  static constexpr ResourceModule module{others};
  ResourceChain::Register(kModule);
  const ResourceModule* before = ResourceChain::SetCurrent(&module);
  EXPECT_EQ(ResourceChain::FindDialog(900), &other);
  EXPECT_EQ(ResourceChain::SetCurrent(before), &module);
  EXPECT_EQ(ResourceChain::FindDialog(900), &kTemplate);
  ResourceChain::SetCurrent(&kModule);
  ResourceChain::Unregister(kModule);
  EXPECT_EQ(ResourceChain::FindDialog(900), nullptr) << "its library may be unloaded";
}

TEST_F(DialogTest, ItsHandlerMayCloseItTwiceButNotCreateIt) {
  dialog.whenDone = [this] {
    EXPECT_FALSE(dialog.Create());
    dialog.reject();
    dialog.reject();
  };
  driver.Click(10);
  EXPECT_TRUE(!dialog.isVisible() && !dialog.IsLeft() && dialog.destroyed == 1 && dialog.Create());
}

TEST_F(DialogTest, ClosesTheModalWindowsAboveItAndNoOther) {
  dialog.move(300, 200);
  SampleDialog popUp(&dialog);
  popUp.Open();
  EXPECT_GT(popUp.x(), 200) << "above its owner";
  QDialog modeless(&dialog);
  modeless.show();
  QDialog hidden(&dialog);
  hidden.setModal(true);
  bool rejected = false;
  QObject::connect(&hidden, &QDialog::rejected, [&rejected] { rejected = true; });
  QDialog first(&dialog);
  const QPointer<QDialog> second = new QDialog(&dialog);
  QObject::connect(&first, &QDialog::rejected, [&second] { delete second; });
  for (QDialog* box : {&first, second.data()}) box->open();
  dialog.reject();
  EXPECT_FALSE(popUp.isVisible() || first.isVisible() || rejected);
  EXPECT_TRUE(second == nullptr && modeless.isVisible());
}

TEST_F(DialogTest, WhatBelongsToAnOwnerEndsWithIt) {
  auto* owner = new QWidget;
  const QPointer<SampleDialog> part = new SampleDialog(owner);
  part->SetDeletedWithOwner(false);
  part->Open();
  part->setWindowFlags(Qt::Widget);
  SampleDialog open(owner), closed(owner), moved(owner);
  const QPointer own = new SampleDialog((SampleDialog(), owner));  // beside one without 'new'
  for (SampleDialog* window : {&open, &closed, &moved, own.data()}) window->Open();
  closed.reject();
  moved.setParent(nullptr, moved.windowFlags());
  delete owner;
  EXPECT_TRUE(part == nullptr && own == nullptr);
  EXPECT_TRUE(open.destroyed == 1 && closed.destroyed == 1 && moved.destroyed == 0);
  dialog.reject();  // looks for pop-ups among all open windows
  EXPECT_EQ(dialog.destroyed, 1);
}

}  // namespace
