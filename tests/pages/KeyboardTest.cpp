// One model of each type of dialog, operated from end to end without a mouse.

#include <set>

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <gtest/gtest.h>

#include "device/LoggingChannel.h"
#include "device/ModelDataIntake.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/DialogDriver.h"
#include "toolkit/CTabCtrl.h"

namespace {

class Keyboard : public testing::TestWithParam<std::pair<int, int>> {
 protected:
  Keyboard() {
    const CModelInfo2 model = FullModel(GetParam().first, GetParam().second);
    dialog_.CopyData(&model, 0);
    dialog_.Projector().SetChannel(std::make_shared<LoggingChannel>(
        std::make_shared<SimulatedProjector>(DescribeModel(MakeModelData(model))),
        [this](const PjtCommand& command, const PjtReply&, auto) {
          if (!FormatCommand(command).starts_with("Get")) ++changes_;
        }));
    EXPECT_TRUE(dialog_.Create());
    dialog_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog_));
    // Pop-ups and boxes count as something done.
    QObject::connect(&closer_, &QTimer::timeout, [this] {
      if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        ++changes_;
        QTest::keyClick(modal, Qt::Key_Escape);
      }
    });
    closer_.start(1);
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  // A box that has closed may have left no window active.
  void Focus(QWidget& control) {
    dialog_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog_));
    if (control.isEnabled()) control.setFocus();
  }

  bool Does(Qt::Key key) {
    changes_ = 0;
    Press(key);
    return changes_ > 0;
  }

  // What a press must do at once: a button at the end of its row's range, or one whose list is
  // empty, does nothing.
  void Operate(QWidget& control) {
    if (auto* button = qobject_cast<QPushButton*>(&control)) {
      if (!MayDoNothing(*button)) {
        EXPECT_TRUE(Does(Qt::Key_Return));
        Focus(control);
        EXPECT_TRUE(!control.isEnabled() || Does(Qt::Key_Space) || MayDoNothing(*button));
      }
      return;
    }
    EXPECT_FALSE(Does(Qt::Key_Return));
    if (qobject_cast<QAbstractButton*>(&control) != nullptr) {
      EXPECT_TRUE(Does(Qt::Key_Space));
    } else if (qobject_cast<QSlider*>(&control) != nullptr) {
      EXPECT_TRUE(Does(Qt::Key_Right) || Does(Qt::Key_Left));
    } else if (const auto* list = qobject_cast<QComboBox*>(&control); list->count() > 1) {
      const int before = list->currentIndex();
      const bool sent = Does(Qt::Key_Down);
      const bool moved = list->currentIndex() != before;
      EXPECT_TRUE(sent || Does(Qt::Key_Up) || (IsPassive(*list) && moved));
    }
  }

  // The list beside a button is read by the button alone; two lists only show.
  bool IsPassive(const QWidget& list) const {
    for (const char* shownOnly : {"P.IN P.Size", "Progressive"}) {
      if (list.accessibleName() == QLatin1String(shownOnly)) return true;
    }
    return std::ranges::any_of(Page().Notifications().Entries(), [&](const Notification& entry) {
      return entry.event == Notification::Event::Passive && Page().GetDlgItem(entry.id) == &list;
    });
  }

  bool MayDoNothing(const QWidget& button) const {
    for (const RowTemplate& row : Page().Template()->rows) {
      bool holds = false;
      bool atEnd = false;
      for (const ControlTemplate& control : row.controls) {
        const QWidget* widget = Page().GetDlgItem(control.id);
        holds = holds || widget == &button;
        const auto* slider = qobject_cast<const QSlider*>(widget);
        const auto* list = qobject_cast<const QComboBox*>(widget);
        atEnd = atEnd || (list != nullptr && list->count() == 0) ||
                (slider != nullptr &&
                 (slider->value() == slider->minimum() || slider->value() == slider->maximum()));
      }
      if (holds) return atEnd;
    }
    return false;
  }

  CTabPage& Page() const { return *dialog_.ShownPage(); }

  CAdvanceDlg dialog_;
  int changes_ = 0;
  QTimer closer_;
};

TEST_P(Keyboard, ReachesAndOperatesEveryControl) {
  auto& tabs = *dialog_.findChild<CTabCtrl*>();
  QWidget* const close = dialog_.GetDlgItem(1);
  for (int tab = 0; tab < tabs.count(); ++tab, Press(Qt::Key_PageDown, Qt::ControlModifier)) {
    SCOPED_TRACE(tabs.tabText(tab).toStdString());
    ASSERT_EQ(tabs.currentIndex(), tab);
    tabs.setFocus();
    std::set<const QWidget*> reached;
    for (Press(Qt::Key_Tab); QApplication::focusWidget() != close; Press(Qt::Key_Tab)) {
      QWidget* control = QApplication::focusWidget();
      ASSERT_TRUE(reached.insert(control).second) << "round in circles";
      SCOPED_TRACE(control->accessibleName().toStdString());
      Operate(*control);
      Focus(*control);
    }
    for (const QWidget* control : Page().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!control->isVisible() || !control->isEnabled()) continue;
      if (control->focusPolicy() & Qt::TabFocus) {
        EXPECT_TRUE(reached.contains(control)) << control->accessibleName().toStdString();
      }
    }
  }
  Focus(*close);
  Press(Qt::Key_Return);
  EXPECT_FALSE(dialog_.isVisible()) << "Enter on Close";
  ASSERT_TRUE(dialog_.Create());
  dialog_.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog_));
  dialog_.findChild<CTabCtrl*>()->setFocus();
  Press(Qt::Key_C, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([this] { return !dialog_.isVisible(); })) << "Alt+C";
}

INSTANTIATE_TEST_SUITE_P(EachType, Keyboard,
                         testing::Values(std::pair(1, 1), std::pair(2, 6), std::pair(3, 10),
                                         std::pair(4, 9), std::pair(5, 30)));

}  // namespace
