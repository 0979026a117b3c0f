// Dialogs that are closed, moved or deleted at any time.

#include <gtest/gtest.h>

#include "tests/toolkit/SampleDialog.h"

namespace {

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

TEST_F(DialogTest, APartOfItsOwnerEndsWithIt) {
  auto* owner = new QWidget;
  const QPointer<SampleDialog> part = new SampleDialog(owner);
  part->SetDeletedWithOwner(false);
  part->Open();
  part->setWindowFlags(Qt::Widget);
  delete owner;
  EXPECT_EQ(part, nullptr);
  dialog.reject();  // looks for pop-ups among all open windows
  EXPECT_EQ(dialog.destroyed, 1);
}

}  // namespace
