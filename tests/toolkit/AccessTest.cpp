// The controls as assistive technologies meet them, without their bus.

#include <QAbstractItemView>
#include <QAccessible>
#include <QLineEdit>
#include <QTest>

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

TEST_F(AccessTest, AListHasItsDropDownAndThatHasTheEntries) {
  EXPECT_EQ(list.indexOfChild(&dropDown), 0);
  EXPECT_TRUE(list.indexOfChild(&one) == -1 && dropDown.indexOfChild(&list) == -1);
  EXPECT_EQ(list.child(1), nullptr);
  for (const int position : {0, 1, 2})
    EXPECT_EQ(dropDown.indexOfChild(dropDown.child(position)), position);
  EXPECT_EQ(one.text(QAccessible::Name), QStringLiteral("One"));
  EXPECT_TRUE(list.state().hasPopup && list.state().expandable);
  EXPECT_TRUE(one.text(QAccessible::Value).isEmpty());
  for (const int outside : {-1, 3}) EXPECT_EQ(dropDown.child(outside), nullptr);

  EXPECT_TRUE(one.state().offscreen && one.rect().isNull());
  Act(list, Actions::showMenuAction());
  EXPECT_TRUE(list.state().expanded);
  EXPECT_TRUE(combo.view()->window()->geometry().contains(one.rect().center()));
  combo.view()->setFocus();
  combo.view()->setCurrentIndex(combo.model()->index(1, 0));
  EXPECT_TRUE(one.state().focused);
  EXPECT_FALSE(dropDown.child(2)->state().focused);
  Act(list, Actions::showMenuAction());
  EXPECT_FALSE(list.state().expanded || one.state().focused);
  combo.setEditable(true);
  ASSERT_TRUE(list.state().editable && list.childCount() == 2);
  EXPECT_EQ(list.child(1)->object(), combo.lineEdit());
  EXPECT_EQ(list.indexOfChild(list.child(1)), 1);
}

TEST_F(AccessTest, EachControlCanBeFocusedAndASliderIsSetOnlyToOtherValues) {
  for (const int id : {4, 9, 15}) {
    Act(AccessOf(*dialog.GetDlgItem(id)), Actions::setFocusAction());
    EXPECT_TRUE(dialog.GetDlgItem(id)->hasFocus()) << id;
  }
  QAccessibleInterface& slider = AccessOf(*dialog.GetDlgItem(4));
  for (const int value : {0, 5, 5}) slider.valueInterface()->setCurrentValue(value);
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog.scrolls, std::vector{5});
  EXPECT_EQ(slider.text(QAccessible::Value), QStringLiteral("5"));
  QAccessibleInterface& check = AccessOf(*dialog.GetDlgItem(15));
  for (const bool checked : {true, false}) {
    Act(check, Actions::toggleAction());
    EXPECT_EQ(check.state().checked, checked);
  }
}

TEST_F(AccessTest, PressingAnEntryChoosesItAsAUserWouldOrNotAtAll) {
  for (const int position : {0, 1}) {
    Act(list, Actions::showMenuAction());
    Act(*dropDown.child(position), Actions::pressAction());
    EXPECT_TRUE(combo.currentIndex() == position && !list.state().expanded);
  }
  EXPECT_TRUE(one.state().selected && one.state().selectable && !one.state().disabled);
  EXPECT_EQ(dialog.choices, 2);
  int start = -1, end = -1;
  list.textInterface()->attributes(0, &start, &end);
  EXPECT_EQ(list.textInterface()->text(start + 1, end - 1), QStringLiteral("n"));
  QAccessibleInterface& two = *dropDown.child(2);
  Act(two, Actions::toggleAction());
  combo.setEnabled(false);
  EXPECT_TRUE(two.state().disabled);
  Act(two, Actions::pressAction());
  combo.setEnabled(true);
  {
    SampleDialog other;
    const CDialog::Busy busy(&dialog);
    { const CDialog::Busy short_(&other); }
    Act(two, Actions::pressAction());
    driver.Choose(9, 2);
    QTest::keyClick(combo.view(), Qt::Key_Return);
    EXPECT_EQ(combo.currentIndex(), 1);
    combo.hidePopup();
  }
  two.actionInterface()->doAction(Actions::pressAction());
  combo.removeItem(2);  // before the action
  for (const int outside : {-1, 2}) combo.Pick(outside);
  QCoreApplication::processEvents();
  Act(two, Actions::pressAction());
  EXPECT_TRUE(combo.currentIndex() == 1 && dialog.choices == 2);
  EXPECT_TRUE(two.state().invalid && !two.state().selectable && !two.state().selected);
  EXPECT_TRUE(two.text(QAccessible::Name).isEmpty() && two.rect().isNull());
}

}  // namespace
