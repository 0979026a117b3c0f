// The controls as assistive technologies meet them, without their bus.

#include <QAccessible>
#include <QLineEdit>
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

TEST_F(AccessTest, AListThatCanBeEditedAlsoHasItsField) {
  combo.setEditable(true);
  EXPECT_TRUE(list.state().editable);
  ASSERT_EQ(list.childCount(), 2);
  EXPECT_EQ(list.child(1)->object(), combo.lineEdit());
  EXPECT_EQ(list.indexOfChild(list.child(1)), 1);
  EXPECT_EQ(list.indexOfChild(&list), -1);
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
  for (const int outside : {-1, 2}) combo.Pick(outside);
  QCoreApplication::processEvents();
  Act(two, Actions::pressAction());
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(dialog.choices, 1);
  EXPECT_TRUE(two.state().invalid);
  EXPECT_TRUE(two.text(QAccessible::Name).isEmpty() && two.rect().isNull());
}

}  // namespace
