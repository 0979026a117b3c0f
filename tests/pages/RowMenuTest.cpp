#include <QApplication>
#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/common/RowMenu.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Soon.h"
#include "toolkit/Contrast.h"

namespace {

constexpr int kBrightness = 20136, kField = 20329, kContrast = 20138, kIris = 20293;
constexpr int kSharpness = 20152, kIrisCaption = 20621;
constexpr int kVolume = 20317, kIrFront = 20375, kPositionV = 20205, kAutoOff = 20369;

// The question that a row's menu opens.
QInputDialog& Asked(CDialog& page, int id) {
  Menu(page, id, "Enter a value…");
  return *qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
}

struct RowMenus : testing::Test {
  OpenDialog open{FullModel(5, 30), 1,
                  Answers({{"Get 0x2003", 138}, {"Get 0x2201", 100}, {"Get 0x2004", -1}})};
  CTabPage& page = open.Page();
  DialogDriver driver = open.Driver();
};

TEST_F(RowMenus, ShowTheRangeAndTheOpeningValueOfARow) {
  driver.Drag(kBrightness, 4);
  open.Projector().Answer("Get 0x2003", 132);
  page.InitDisp();
  for (const auto& [control, lines] : std::vector<std::pair<int, std::string>>{
           {kField, "(Range: -32 to 32), (When opened: 10), Put back, Enter a value…, Copy"},
           {kSharpness, "(Range: 1 to 7), (When opened: -24), (Put back), Enter a value…, Copy"},
           {kContrast,
            "(The projector did not report this setting.), (Put back), "
            "(Enter a value…), Copy"},
           {kIris, "(When opened: Off), (Put back), Copy"},
           {kIrisCaption, "(When opened: Off), (Put back), Copy"},
           {21065, ""}}) {
    EXPECT_EQ(Menu(page, control, "Copy"), lines) << control;
  }
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Active Iris: Off"));
  EXPECT_TRUE(driver.IsEnabled(kIrisCaption));
  for (const char* read : {"Get 0x2003", "Get 0x3304"}) open.Projector().Refuse(read);
  page.InitDisp();
  EXPECT_FALSE(driver.IsEnabled(kIrisCaption));
  EXPECT_NE(Menu(page, kField).find("(When opened: 10), (Put back), (Enter a value…), Copy"),
            std::string::npos);
}

TEST_F(RowMenus, PutBackActsLikeAUserAndNeverWhileAHandlerRuns) {
  const auto service = MakePopUp(PopUp::Service, open.Dialog());
  Open(*service);
  DialogDriver(*service).Click(kIrFront);
  driver.Drag(kBrightness, 4);
  driver.Choose(kIris, 1);
  open.Projector().Take();
  for (const bool busy : {true, false}) {
    for (const int control : {kBrightness, kIris}) Menu(page, control, "Put back", busy);
    Menu(*service, kIrFront, "Put back", busy);
    const Strings all{"SetBrightness 138", "Set 0x3304 0", "SetIRFront 0"};
    EXPECT_EQ(open.Projector().Take(), busy ? Strings() : all);
  }
  EXPECT_EQ(Menu(*service, kIrFront), "(When opened: Off), (Put back), Copy");
  EXPECT_EQ(Menu(*service, 20546), "") << "the caption of several rows";
}

TEST_F(RowMenus, ATypedNumberIsSentAndRefusedLikeADrag) {
  driver.Item<QWidget>(kBrightness).setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
  auto* question = &Asked(page, kBrightness);
  EXPECT_EQ(question->windowTitle(), QStringLiteral("Brightness"));
  EXPECT_EQ(question->textValue(), QStringLiteral("10"));
  EXPECT_EQ(question->labelText(), QStringLiteral("Range: -32 to 32"));
  auto* field = question->findChild<QLineEdit*>();
  for (const char* text : {"-99", "33", "7 8", "", "7.5", "0x7", "99999999999"}) {
    QTest::keyClick(field, Qt::Key_Backspace);  // all of it is selected
    QTest::keyClicks(field, QString::fromUtf8(text));
    QTest::keyClick(question, Qt::Key_Return);
    EXPECT_EQ(open.Projector().Take(), Strings{}) << text;
    EXPECT_TRUE(question->isVisible()) << text;
    EXPECT_EQ(question->textValue(), QString::fromUtf8(text));
    EXPECT_EQ(question->labelText(), QStringLiteral("Enter a whole number from -32 to 32."));
  }
  QTest::keyClick(field, Qt::Key_Backspace);
  QTest::keyClicks(field, QStringLiteral("-32"));
  open.Projector().Refuse("SetBrightness");
  QTest::keyClick(question, Qt::Key_Return);
  EXPECT_EQ(open.Projector().Take(), Strings{"SetBrightness 96"});
  EXPECT_EQ(driver.SliderAt(kBrightness), -32) << "this page's refused drags stay";
  question = &Asked(page, kBrightness);
  question->setTextValue(QStringLiteral("32"));
  const CDialog::Busy handler(&open.Dialog());
  question->accept();
  EXPECT_FALSE(question->isVisible());
  EXPECT_EQ(driver.SliderAt(kBrightness), -32) << "a handler runs";
}

TEST(RowMenu, ShowsTheUnitOfATypedNumberAndTextsThatCanBeRead) {
  OpenDialog open(FullModel(5, 51), 7);
  open.Dialog().SetProjectorName("Hall");
  const RowMenu menu(RowMenu::Row(), &open.Page());
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    EXPECT_GE(ContrastOf(menu.palette().color(QPalette::Disabled, role),
                         menu.palette().color(QPalette::Disabled, QPalette::Base)),
              3);
  EXPECT_TRUE(menu.actions().front()->isSeparator());
  const QPointer question = &Asked(open.Page(), kAutoOff);
  EXPECT_EQ(question->windowTitle(), QStringLiteral("Hall — Auto Off"));
  const auto* field = question->findChild<QLineEdit*>();
  const auto* unit = field->findChild<QLabel*>();
  ASSERT_NE(unit, nullptr);
  EXPECT_EQ(unit->text(), QStringLiteral("min"));
  EXPECT_TRUE(field->rect().contains(unit->geometry()));
  EXPECT_GE(field->textMargins().right(), field->width() - unit->x() - 1)
      << "the number ends there";
  question->setTextValue(QStringLiteral("7"));
  question->reject();
  EXPECT_EQ(open.Projector().Take(), Strings{});
  EXPECT_TRUE(Soon([&] { return question == nullptr; }));
}

TEST(RowMenu, TheOpeningValueBelongsToTheInputSource) {
  OpenDialog open(FullModel(5, 44), 4);
  open.Driver().Drag(kVolume, 9);
  Menu(open.Page(), kVolume, "Put back");
  EXPECT_EQ(open.Projector().TakeChanges().back(), "SetVolumeEachSrc 0 0");
  open.Driver().Drag(kVolume, 9);
  open.Projector().Answer("GetInputSource", 3);
  open.Projector().Answer("GetInputSrcVolume 3", 5);
  open.Projector().Take();
  Menu(open.Page(), kVolume, "Put back", true);
  EXPECT_EQ(open.Projector().Take(), Strings{}) << "a handler runs";
  Menu(open.Page(), kVolume, "Put back");
  EXPECT_EQ(open.Projector().TakeChanges(), Strings{});
  EXPECT_EQ(open.Driver().SliderAt(kVolume), 5);
  EXPECT_NE(Menu(open.Page(), kVolume).find("When opened: 5"), std::string::npos);
}

TEST(RowMenu, StepsArrowRowsWhileStepsComeNearer) {
  OpenDialog open(FullModel(5, 30), 2, Answers({{"Get 0x2100", 40}}));
  RecordingChannel& projector = open.Projector();
  EXPECT_EQ(Menu(open.Page(), kPositionV), "(When opened: 40), (Put back), Enter a value…, Copy");
  projector.Answer("Get 0x2100", 41);
  MessageBoxes boxes;
  for (const auto& [number, sent] :
       {std::pair{"4137", Strings{}},
        {"42", Strings{"Inc 0x2100", "Get 0x2100", "Inc 0x2100", "Get 0x2100"}},
        {"45", Strings{"Inc 0x2100"}}}) {
    if (sent.size() == 1) projector.Refuse(sent.front());  // which ends the stepping
    auto& question = Asked(open.Page(), kPositionV);
    question.setTextValue(QString::fromUtf8(number));
    projector.Take();
    question.accept();
    EXPECT_EQ(projector.Take(), sent);
    const QString tip = open.Page().GetDlgItem(kPositionV)->toolTip();
    EXPECT_EQ(tip.startsWith("Not accepted: Position V 4137. The projector has 40."), sent.empty());
  }
  projector.Answer("Get 0x2100", 40);
  Menu(open.Page(), kPositionV, "Put back");
  EXPECT_EQ(projector.Take(), (Strings{"Dec 0x2100", "Get 0x2100"}));
}

}  // namespace
