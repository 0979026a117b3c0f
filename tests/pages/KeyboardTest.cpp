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

struct Model {
  int dialogType, modelCode;
  std::set<std::string> idle;  // At an end of the row's range, beside an empty list, or only shown.
};

class Keyboard : public testing::TestWithParam<Model> {
 protected:
  Keyboard() {
    const CModelInfo2 model = FullModel(GetParam().dialogType, GetParam().modelCode);
    const auto count = [this](const PjtCommand& sent, auto&&...) {
      done_ += !IsRead(sent.operation);
    };
    Open(dialog_, model,
         std::make_shared<LoggingChannel>(
             std::make_shared<SimulatedProjector>(DescribeModel(MakeModelData(model))), count));
    // Pop-ups and boxes count as something done.
    QObject::connect(&closer_, &QTimer::timeout, [this] {
      if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        ++done_;
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
    done_ = 0;
    Press(key);
    return done_ > 0;
  }

  // Whether the keys of its kind do something at once.
  bool Operates(QWidget& control) {
    if (qobject_cast<QPushButton*>(&control) != nullptr) {
      if (!Does(Qt::Key_Return)) return false;
      Focus(control);
      return !control.isEnabled() || Does(Qt::Key_Space);
    }
    EXPECT_FALSE(Does(Qt::Key_Return));
    if (qobject_cast<QAbstractButton*>(&control) != nullptr) return Does(Qt::Key_Space);
    if (qobject_cast<QSlider*>(&control) != nullptr) {
      return Does(Qt::Key_Right) || Does(Qt::Key_Left);
    }
    return qobject_cast<QComboBox*>(&control) == nullptr || Does(Qt::Key_Down) || Does(Qt::Key_Up);
  }

  CAdvanceDlg dialog_;
  int done_ = 0;
  QTimer closer_;
};

TEST_P(Keyboard, ReachesAndOperatesEveryControl) {
  auto& tabs = *dialog_.findChild<CTabCtrl*>();
  QWidget* const close = dialog_.GetDlgItem(1);
  std::set<std::string> idle;
  for (int tab = 0; tab < tabs.count(); ++tab, Press(Qt::Key_PageDown, Qt::ControlModifier)) {
    SCOPED_TRACE(tabs.tabText(tab).toStdString());
    ASSERT_EQ(tabs.currentIndex(), tab);
    tabs.setFocus();
    std::set<const QWidget*> reached;
    QPoint last;
    for (Press(Qt::Key_Tab); QApplication::focusWidget() != close; Press(Qt::Key_Tab)) {
      QWidget* control = QApplication::focusWidget();
      ASSERT_TRUE(reached.insert(control).second) << "round in circles";
      const std::string name = control->accessibleName().toStdString();
      SCOPED_TRACE(name);
      const QPoint at(control->x(), control->geometry().center().y());
      EXPECT_TRUE(at.y() > last.y() + 8 || at.x() > last.x()) << "row by row, left to right";
      last = at;
      if (!Operates(*control)) idle.insert(name);
      Focus(*control);
    }
    for (auto* control : dialog_.ShownPage()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (!control->isVisible() || !control->isEnabled()) continue;
      if (control->focusPolicy() & Qt::TabFocus) {
        EXPECT_TRUE(reached.contains(control)) << control->accessibleName().toStdString();
      }
    }
  }
  EXPECT_EQ(idle, GetParam().idle);
  EXPECT_EQ(tabs.currentIndex(), 0) << "round";
  Press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(tabs.currentIndex(), tabs.count() - 1);
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

const Model kModels[] = {
    {1, 1, {"Auto Off (min) −", "My Memory", "P.IN P.Size", "Reset"}},
    {2, 6, {"Auto Off (min) −", "Reset"}},
    {3, 10, {"Auto Off (min) −", "Reset"}},
    {4,
     9,
     {"Auto Off (min) −", "Electric Zoom +", "My Memory", "Progressive", "Reset", "Sharpness −"}},
    {5, 30, {"My Memory", "Reset"}},
};
INSTANTIATE_TEST_SUITE_P(EachType, Keyboard, testing::ValuesIn(kModels));

}  // namespace
