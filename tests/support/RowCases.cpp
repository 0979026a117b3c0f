#include "tests/support/RowCases.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <gtest/gtest.h>

#include "toolkit/CSliderCtrl.h"

namespace {

using Strings = std::vector<std::string>;

std::string Shown(const DialogDriver& driver, int control) {
  QWidget& widget = driver.Item<QWidget>(control);
  if (const auto* slider = qobject_cast<CSliderCtrl*>(&widget)) {
    return std::to_string(slider->value());
  }
  if (const auto* check = qobject_cast<QCheckBox*>(&widget)) {
    return check->isChecked() ? "on" : "off";
  }
  return driver.Text(control).toStdString();
}

void Do(const DialogDriver& driver, const Use& use) {
  QWidget& widget = driver.Item<QWidget>(use.control);
  if (qobject_cast<CSliderCtrl*>(&widget) != nullptr) {
    driver.Drag(use.control, use.position);
  } else if (qobject_cast<CComboBox*>(&widget) != nullptr) {
    driver.Choose(use.control, use.position);
  } else {
    driver.Click(use.control);
  }
}

void ExpectBoxes(MessageBoxes& boxes, int error) {
  const auto seen = boxes.Take();
  ASSERT_EQ(seen.size(), error != 0 ? 1U : 0U);
  if (error == 0) return;
  EXPECT_EQ(seen[0].text, CatalogString(kErrorCategory, error));
  EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
}

void ExpectRead(OpenDialog& open, const RowCase& row) {
  const DialogDriver driver = open.Driver();
  const bool isField = qobject_cast<QLineEdit*>(&driver.Item<QWidget>(row.control)) != nullptr;
  open.Projector().Refuse(row.read);
  open.Page().InitDisp();
  if (isField) {
    EXPECT_EQ(Shown(driver, row.control), "") << "a failed read";
  } else {
    EXPECT_FALSE(driver.IsEnabled(row.control)) << "a failed read";
  }
  open.Projector().Accept(row.read);
  open.Projector().Answer(row.read, row.value);
  open.Page().InitDisp();
  EXPECT_TRUE(driver.IsEnabled(row.control));
  EXPECT_EQ(Shown(driver, row.control), row.shown);
}

}  // namespace

void ExpectRow(OpenDialog& open, const RowCase& row) {
  SCOPED_TRACE("control " + std::to_string(row.control));
  ASSERT_NE(open.Page().GetDlgItem(row.control), nullptr);
  ASSERT_TRUE(open.Page().GetDlgItem(row.control)->isVisible());
  const DialogDriver driver = open.Driver();
  if (!row.read.empty()) ExpectRead(open, row);
  MessageBoxes boxes;
  const std::string before = Shown(driver, row.control);
  for (const Use& use : row.uses) {
    SCOPED_TRACE("use of " + std::to_string(use.control));
    open.Projector().Take();
    Do(driver, use);
    EXPECT_EQ(open.Projector().Take(), use.commands);
    ExpectBoxes(boxes, 0);
    if (!row.read.empty()) open.Page().InitDisp();  // back to the value that is read
  }
  if (row.refuse.empty()) return;
  open.Projector().Refuse(row.refuse);
  Do(driver, row.uses.front());
  ExpectBoxes(boxes, row.error);
  EXPECT_EQ(Shown(driver, row.control), row.after.empty() ? before : row.after) << "when refused";
  EXPECT_TRUE(driver.IsEnabled(row.control));
}

void ExpectRowCases(const CModelInfo2& model, int tab, const std::vector<RowCase>& rows) {
  for (const RowCase& row : rows) {
    OpenDialog open(model, tab);
    ExpectRow(open, row);
  }
}
