#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "device/BoundedChannel.h"
#include "pages/common/StatusLine.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/PacedProjector.h"

/// An open dialog of a projector that takes its time.
class PacedDialog : public testing::Test {
 protected:
  PacedDialog() {
    dialog_.CopyData(&model_, 0);
    dialog_.Projector().SetChannel(std::make_shared<BoundedChannel>(
        projector_, BoundedChannel::Limits{.timeOut = std::chrono::seconds(3),
                                           .retryAfter = std::chrono::hours(1)}));
  }
  ~PacedDialog() override { projector_->Pace(std::chrono::milliseconds(0)); }

  void Open() {
    ASSERT_TRUE(dialog_.CreateShown());
    dialog_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog_));
  }
  QTabBar& Tabs() { return *dialog_.findChild<QTabBar*>(); }
  DialogDriver Page() { return DialogDriver(*dialog_.ShownPage()); }
  QWidget* Veil() {
    auto* last = qobject_cast<QWidget*>(dialog_.ShownPage()->children().last());
    return last != nullptr && last->cursor().shape() == Qt::WaitCursor ? last : nullptr;
  }
  QString Status() { return dialog_.findChild<StatusLine*>()->findChild<QLabel*>()->text(); }
  QPushButton& Retry() { return *dialog_.findChild<StatusLine*>()->findChild<QPushButton*>(); }
  void ClickTab(int tab) {
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(tab).center());
  }

  QWidget* Focused() { return dialog_.focusWidget() != nullptr ? dialog_.focusWidget() : &dialog_; }

  /// Makes the projector slow, and acts while the first command waits, which must not keep the act.
  void InTheWait(const std::function<void()>& act) {
    projector_->Pace(std::chrono::seconds(2));
    QTimer::singleShot(std::chrono::milliseconds(150), qApp, [act] {
      QElapsedTimer clock;
      clock.start();
      act();
      QTimer::singleShot(0, qApp, [clock] { EXPECT_LT(clock.elapsed(), 500); });
    });
  }

  CModelInfo2 model_ = FullModel(5, 30);
  std::shared_ptr<PacedProjector> projector_ = std::make_shared<PacedProjector>(model_);
  CAdvanceDlg dialog_;
};
