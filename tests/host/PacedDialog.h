#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "device/channels/BoundedChannel.h"
#include "pages/common/StatusLine.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/PacedProjector.h"

// The channel's time-out for a silent projector, and a time that no action may take if it does not
// wait for the projector.
inline constexpr std::chrono::milliseconds kTimeOut = std::chrono::seconds(20);
inline constexpr std::chrono::milliseconds kTooLong = std::chrono::seconds(10);
inline constexpr std::chrono::milliseconds kForEver = std::chrono::hours(1);

/// An open dialog with a slow projector.
class PacedDialog : public testing::Test {
 protected:
  explicit PacedDialog(std::chrono::milliseconds timeOut = kTimeOut) {
    dialog_.CopyData(&model_, 0);
    dialog_.Projector().SetChannel(std::make_shared<BoundedChannel>(
        projector_,
        BoundedChannel::Limits{.timeOut = timeOut, .retryAfter = std::chrono::hours(1)}));
  }
  ~PacedDialog() override { projector_->Pace(std::chrono::milliseconds(0)); }

  void Open(int tab = 0) {
    ASSERT_TRUE(dialog_.CreateShown());
    Activate(dialog_);
    if (tab != 0) ClickTab(tab);
  }
  QTabBar& Tabs() { return *dialog_.findChild<QTabBar*>(); }
  DialogDriver Page() { return DialogDriver(*dialog_.ShownPage()); }
  /// What dims the page, and covers all of it.
  QWidget* Veil() {
    auto* last = qobject_cast<QWidget*>(dialog_.ShownPage()->children().last());
    if (last == nullptr || last->cursor().shape() != Qt::WaitCursor) return nullptr;
    EXPECT_TRUE(last->isVisible() && last->geometry() == dialog_.ShownPage()->rect());
    return last;
  }
  QString Status() { return dialog_.findChild<StatusLine*>()->findChild<QLabel*>()->text(); }
  QPushButton& Retry() { return *dialog_.findChild<StatusLine*>()->findChild<QPushButton*>(); }
  void ClickTab(int tab) {
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(tab).center());
  }

  QWidget* Focused() { return dialog_.focusWidget() != nullptr ? dialog_.focusWidget() : &dialog_; }

  /// Makes the projector silent and calls `act` while the first command waits, or, with `shown`,
  /// once the dialog shows that. The wait must not block `act`.
  void InTheWait(const std::function<void()>& act, bool shown = false) {
    projector_->Pace(kForEver);
    look_.callOnTimeout(&look_, [this, act, shown] {
      if (!projector_->waiting || (shown && Status().isEmpty())) return;
      look_.stop();
      look_.disconnect();
      QElapsedTimer clock;
      clock.start();
      act();
      QTimer::singleShot(0, qApp, [clock] { EXPECT_FALSE(clock.hasExpired(kTooLong.count())); });
    });
    look_.start(20);
  }

  CModelInfo2 model_ = FullModel(5, 30);
  std::shared_ptr<PacedProjector> projector_ = std::make_shared<PacedProjector>(model_);
  CAdvanceDlg dialog_;
  QTimer look_;
};
