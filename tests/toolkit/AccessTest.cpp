// The controls as assistive technologies meet them, without their bus.

#include <QAbstractItemView>
#include <QAccessible>
#include <QCheckBox>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/toolkit/SampleDialog.h"

namespace {

using Actions = QAccessibleActionInterface;

QAccessibleInterface& AccessOf(QObject& object) {
  return *QAccessible::queryAccessibleInterface(&object);
}

void Act(QAccessibleInterface& control, const QString& action) {
  control.actionInterface()->doAction(action);
  QCoreApplication::processEvents();  // actions are asynchronous
}

struct AccessTest : DialogTest {
  CComboBox& combo = dialog.Item<CComboBox>(9);
  QAccessibleInterface& list = AccessOf(combo);
  QAccessibleInterface& dropDown = *list.child(0);
  QAccessibleInterface& one = *dropDown.child(1);
};

TEST_F(AccessTest, AListHasItsDropDownWhoseChildrenAreTheEntries) {
  EXPECT_EQ(list.childCount(), 1);
  EXPECT_EQ(list.child(1), nullptr);
  EXPECT_EQ(list.indexOfChild(&dropDown), 0);
  EXPECT_EQ(list.indexOfChild(&list), -1);
  EXPECT_EQ(dropDown.parent(), &list);
  EXPECT_EQ(dropDown.childCount(), 3);
  for (const int outside : {-1, 3}) EXPECT_EQ(dropDown.child(outside), nullptr);
  EXPECT_EQ(dropDown.indexOfChild(&one), 1);
  EXPECT_EQ(dropDown.indexOfChild(&list), -1);
  EXPECT_EQ(one.text(QAccessible::Name), QStringLiteral("One"));
  EXPECT_EQ(one.text(QAccessible::Value), QString());
}

TEST_F(AccessTest, AListOpensAndAnEntryIsWhereItIsShown) {
  EXPECT_TRUE(one.state().offscreen);
  EXPECT_TRUE(one.rect().isNull());
  combo.Select(1);
  Act(list, Actions::showMenuAction());
  ASSERT_TRUE(combo.view()->isVisible());
  EXPECT_FALSE(one.state().offscreen);
  const QAbstractItemView& view = *combo.view();
  EXPECT_EQ(view.indexAt(view.viewport()->mapFromGlobal(one.rect().center())).row(), 1);
  combo.view()->setFocus();
  EXPECT_TRUE(one.state().focused);
  EXPECT_TRUE(one.state().selected);
  EXPECT_FALSE(dropDown.child(0)->state().focused);
  Act(list, Actions::showMenuAction());
  EXPECT_FALSE(combo.view()->isVisible());
  EXPECT_FALSE(one.state().focused);
  Act(list, Actions::setFocusAction());
  EXPECT_TRUE(combo.hasFocus());
}

TEST_F(AccessTest, PressingAnEntryChoosesItAsAUserWouldOrNotAtAll) {
  Act(one, Actions::pressAction());
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(dialog.choices, 1);
  QAccessibleInterface& two = *dropDown.child(2);
  Act(two, Actions::toggleAction());
  combo.setEnabled(false);
  Act(two, Actions::pressAction());
  combo.setEnabled(true);
  {
    const CDialog::Busy busy(&dialog);
    Act(two, Actions::pressAction());
  }
  two.actionInterface()->doAction(Actions::pressAction());
  combo.removeItem(2);  // before the action
  QCoreApplication::processEvents();
  Act(two, Actions::pressAction());
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(dialog.choices, 1);
  EXPECT_TRUE(two.state().invalid);
  EXPECT_TRUE(two.text(QAccessible::Name).isEmpty() && two.rect().isNull());
}

}  // namespace
