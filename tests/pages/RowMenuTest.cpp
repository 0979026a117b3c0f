#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/common/RowDialog.h"
#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

QMenu* OpenMenu(QWidget& control) {
  const QPoint middle = control.rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, middle, control.mapToGlobal(middle));
  QApplication::sendEvent(&control, &event);
  return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

// The menu's lines, in brackets where they cannot be chosen.
std::string Lines(QWidget& control) {
  QStringList lines;
  QMenu* menu = OpenMenu(control);
  for (const QAction* action : menu != nullptr ? menu->actions() : QList<QAction*>()) {
    if (action->isSeparator()) continue;
    lines << (action->isEnabled() ? action->text() : u'(' + action->text() + u')');
  }
  if (menu != nullptr) menu->close();
  return lines.join(QStringLiteral(", ")).toStdString();
}

QAction* Action(const QMenu* menu, const char* text) {
  for (QAction* action : menu->actions()) {
    if (action->text() == QString::fromUtf8(text)) return action;
  }
  return nullptr;
}

void Choose(QWidget& control, const char* text) {
  QMenu* menu = OpenMenu(control);
  ASSERT_TRUE(menu != nullptr && Action(menu, text) != nullptr) << text;
  QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(Action(menu, text)).center());
}

constexpr int kBrightness = 20136, kField = 20329, kContrast = 20138, kIris = 20293,
              kMemoryButton = 21065;

struct RowMenus : testing::Test {
  OpenDialog open{FullModel(5, 30), 1, [](RecordingChannel& projector) {
                    projector.Answer("Get 0x2003", 138);
                    projector.Answer("Get 0x3304", 16);
                    projector.Refuse("Get 0x2004");
                  }};
  DialogDriver driver = open.Driver();
  QWidget& At(int id) const { return driver.Item<QWidget>(id); }
};

TEST_F(RowMenus, TellWhatTheRowTakesAndWas) {
  for (const auto& [control, lines] : std::vector<std::pair<int, std::string>>{
           {kBrightness, "(Range: -32 to 32), (When opened: 10), (Put back), Enter a value…, Copy"},
           {kContrast,
            "(The projector did not report this setting.), (Put back), "
            "(Enter a value…), Copy"},
           {kIris, "(When opened: Theater), (Put back), Copy"},
           {kMemoryButton, ""}}) {
    EXPECT_EQ(Lines(At(control)), lines) << control;
  }
  driver.Drag(kBrightness, 4);
  EXPECT_EQ(Lines(At(kField)),
            "(Range: -32 to 32), (When opened: 10), Put back, Enter a value…, Copy");
  Choose(At(kField), "Copy");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Brightness: 4"));
  open.SelectTab(0);
  EXPECT_EQ(Lines(*open.Page().GetDlgItem(20012)), "Copy");
}

TEST_F(RowMenus, PutBackAndTypedNumbersGoTheWayOfAHand) {
  driver.Drag(kBrightness, 4);
  driver.Choose(kIris, 0);
  open.Projector().Take();
  Choose(At(kBrightness), "Put back");
  Choose(At(kIris), "Put back");
  EXPECT_EQ(open.Projector().Take(), (Strings{"SetBrightness 138", "Set 0x3304 16"}));
  At(kBrightness).setFocus();
  QTest::keyClick(&At(kBrightness), Qt::Key_F10, Qt::ShiftModifier);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  Action(menu, "Enter a value…")->trigger();
  menu->close();
  auto* question = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
  ASSERT_NE(question, nullptr);
  QTest::keyClicks(question->findChild<QSpinBox*>(), QStringLiteral("-99"));
  EXPECT_EQ(question->intValue(), -9) << "the slider ends at -32";
  open.Projector().Refuse("SetBrightness");
  QTest::keyClick(question, Qt::Key_Return);
  EXPECT_EQ(open.Projector().Take(), Strings{"SetBrightness 119"});
  EXPECT_EQ(driver.SliderAt(kBrightness), -9) << "as after a refused drag";
  EXPECT_EQ(driver.Text(kField), QStringLiteral("10"));
}

TEST_F(RowMenus, NothingMovesWhileAHandlerRuns) {
  driver.Drag(kBrightness, 4);
  open.Projector().Take();
  QMenu* menu = OpenMenu(At(kBrightness));
  const CDialog::Busy busy(&open.Dialog());
  Action(menu, "Put back")->trigger();
  EXPECT_EQ(open.Projector().Take(), Strings{});
  EXPECT_EQ(driver.SliderAt(kBrightness), 4);
}

TEST(RowMenu, AnotherInputSourceHasAnotherPast) {
  OpenDialog open(FullModel(5, 42), 4);
  QWidget& volume = *open.Page().GetDlgItem(20317);
  open.Driver().Drag(20317, 9);
  open.Projector().Answer("GetInputSource", 3);
  open.Projector().Answer("GetInputSrcVolume 3", 5);
  open.Projector().Take();
  Choose(volume, "Put back");
  EXPECT_EQ(open.Projector().TakeChanges(), Strings{});
  EXPECT_EQ(open.Driver().SliderAt(20317), 5);
  EXPECT_NE(Lines(volume).find("When opened: 5"), std::string::npos);
}

TEST_F(RowMenus, ABoxIsCheckedAgain) {
  const auto service = MakePopUp(PopUp::Service, open.Dialog());
  Open(*service);
  QWidget& box = *service->GetDlgItem(20375);
  DialogDriver(*service).Click(20375);
  open.Projector().Take();
  EXPECT_EQ(Lines(box), "(When opened: Off), Put back, Copy");
  Choose(box, "Put back");
  EXPECT_EQ(open.Projector().Take(), Strings{"SetIRFront 0"});
}

}  // namespace
