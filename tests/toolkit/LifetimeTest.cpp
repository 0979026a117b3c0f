// Dialogs that are closed, moved or deleted at any time, and input that comes meanwhile.

#include <optional>

#include <QInputMethodEvent>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/toolkit/SampleDialog.h"
#include "toolkit/MessageBox.h"

namespace {

// Takes the events of a control before it does.
struct Seen final : QObject {
  bool eventFilter(QObject*, QEvent* event) override {
    last = event->type();
    return true;
  }
  QEvent::Type last = QEvent::None;
};

TEST_F(DialogTest, InputToItsControlsIsDroppedWhileAHandlerRuns) {
  QWidget& control = *dialog.GetDlgItem(9);
  control.setAttribute(Qt::WA_AcceptTouchEvents);
  control.setFocus();
  Seen seen;
  control.installEventFilter(&seen);
  int dropped = 0;
  QObject::connect(&dialog, &InputDialog::InputDropped, [&dropped] { ++dropped; });
  const QPointF at(2, 2);
  const std::unique_ptr<QPointingDevice> touchDevice(QTest::createTouchDevice());
  const auto mouse = [at](QEvent::Type type) {
    return std::make_shared<QMouseEvent>(type, at, at, Qt::LeftButton, Qt::LeftButton,
                                         Qt::NoModifier);
  };
  const auto key = [](Qt::Key code) {
    return std::make_shared<QKeyEvent>(QEvent::KeyPress, code, Qt::NoModifier);
  };
  struct Case {
    std::shared_ptr<QEvent> event;
    bool arrives, isTold;
  };
  const Case cases[] = {
      {mouse(QEvent::MouseButtonPress), false, true},
      {mouse(QEvent::MouseButtonDblClick), false, true},
      {mouse(QEvent::MouseButtonRelease), true, false},
      {std::make_shared<QTouchEvent>(QEvent::TouchBegin, touchDevice.get()), false, true},
      {std::make_shared<QContextMenuEvent>(QContextMenuEvent::Keyboard, QPoint()), false, true},
      {std::make_shared<QInputMethodEvent>(), false, true},
      {key(Qt::Key_A), false, true},
      {key(Qt::Key_F4), false, true},
      {key(Qt::Key_Shift), false, false},
      {key(Qt::Key_Tab), true, false},
      {key(Qt::Key_Backtab), true, false},
      {key(Qt::Key_Escape), true, false},
  };
  for (const bool busy : {true, false}) {
    const CDialog::Busy handler(busy ? &dialog : nullptr);
    for (const auto& [event, arrives, isTold] : cases) {
      SCOPED_TRACE(testing::Message() << "event " << event->type());
      seen.last = QEvent::None;
      dropped = 0;
      QApplication::sendEvent(&control, event.get());
      EXPECT_EQ(seen.last == event->type(), !busy || arrives);
      EXPECT_EQ(dropped, busy && isTold ? 1 : 0);
    }
  }
}

TEST_F(DialogTest, ItsHandlerMayCloseItTwiceButNotCreateIt) {
  dialog.whenDone = [this] {
    EXPECT_FALSE(dialog.Create());
    dialog.reject();
    dialog.reject();
  };
  driver.Click(10);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.destroyed, 1);
}

TEST_F(DialogTest, ClosesTheModalWindowsAboveItAndNoOther) {
  SampleDialog popUp(&dialog);
  popUp.Open();
  QDialog modeless(&dialog);
  modeless.show();
  QDialog hidden(&dialog);
  hidden.setModal(true);
  bool rejected = false;
  QObject::connect(&hidden, &QDialog::rejected, [&rejected] { rejected = true; });
  QDialog first(&dialog);
  const QPointer<QDialog> second = new QDialog(&dialog);
  QObject::connect(&first, &QDialog::rejected, [&second] { delete second; });
  for (QDialog* box : {&first, second.data()}) {
    box->setModal(true);
    box->show();
  }
  dialog.reject();
  EXPECT_FALSE(popUp.isVisible() || first.isVisible() || rejected);
  EXPECT_EQ(second, nullptr);
  EXPECT_TRUE(modeless.isVisible());
}

TEST_F(DialogTest, EndsOnceAndAsksNothingMoreWhenTheWindowsBelowItDie) {
  auto* window = new QWidget;
  std::optional<SampleDialog> owner(std::in_place, window);
  owner->Open();
  SampleDialog closed(window), popUp(&*owner);
  closed.Open();
  closed.reject();
  popUp.Open();
  MessageBoxes boxes(true);
  EXPECT_TRUE(AskYesNo(popUp, QStringLiteral("Sure?"), {}));
  EXPECT_TRUE(AskYesNo(*window, QStringLiteral("Sure?"), {}));
  EXPECT_EQ(boxes.Take().size(), 2U);
  delete window;
  EXPECT_TRUE(popUp.IsOrphaned());
  EXPECT_FALSE(popUp.isVisible() || AskYesNo(popUp, QStringLiteral("Sure?"), {}));
  EXPECT_TRUE(boxes.Take().empty());
  owner.reset();
  EXPECT_EQ(popUp.destroyed, 1);
  EXPECT_EQ(closed.destroyed, 1);
}

}  // namespace
