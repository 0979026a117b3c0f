// A page that a host shows in a window of its own.

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "pages/picture/CPictureTabType5Dlg.h"
#include "pages/rows/RowMarks.h"
#include "tests/support/DialogDriver.h"

namespace {

constexpr int kBrightness = 20136, kBrightnessPlus = 20135;

TEST(LonePage, ActsMarksAndPutsBackLikeOneOfTheDialog) {
  QWidget window;
  const auto channel = std::make_shared<RecordingChannel>();
  channel->Answer("Get 0x2003", 128);
  CPjtInterface projector;
  projector.SetChannel(channel);
  CPictureTabType5Dlg page(&window);
  (new QVBoxLayout(&window))->addWidget(&page);
  page.projector = &projector;
  ASSERT_TRUE(page.Create());
  page.show();
  Activate(window);
  page.InitDisp();
  channel->Take();
  const DialogDriver driver(page);
  driver.Drag(kBrightness, 6);
  QContextMenuEvent menu(QContextMenuEvent::Mouse,
                         driver.Item<QWidget>(kBrightness).rect().center(), QPoint());
  QApplication::sendEvent(page.GetDlgItem(kBrightness), &menu);
  auto* opened = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(opened, nullptr);
  for (QAction* action : opened->actions()) {
    if (action->text() == QStringLiteral("Put back")) action->trigger();
  }
  opened->close();
  QCoreApplication::processEvents();
  EXPECT_EQ(channel->Take(), (std::vector<std::string>{"SetBrightness 134", "SetBrightness 128"}));
  channel->Refuse("Inc 0x2003");
  MessageBoxes boxes;
  driver.Click(kBrightnessPlus);
  EXPECT_EQ(boxes.Take().size(), 1U);
  EXPECT_TRUE(window.findChild<RowMarks*>()->isVisible());
  EXPECT_FALSE(page.IsOrphaned());
}

}  // namespace
