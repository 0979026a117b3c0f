// The picture pages with custom pop-ups.

#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

#include "pages/picture/CPictureTabType5Dlg.h"
#include "tests/support/DialogDriver.h"

namespace {

constexpr int kGamma = 20142, kColorTemp = 20144, kIris = 20293, kContrast = 20138;
constexpr int kCustomGamma = 20133, kCustomColorTemp = 20143;

CModelInfo2 PictureModel(int dialogType = 5, int modelCode = 30) {
  CModelInfo2 model = MakeModel(dialogType, modelCode);
  for (const int value : {17, 21, 22, 33}) AddEntry(model.GammaList, value, "gamma");
  for (const int value : {2, 16, 17, 18, 19}) AddEntry(model.ColorTempList, value, "temperature");
  return model;
}

const auto kCustom = Answers({{"Get 0x30A1", 17}, {"Get 0x30B0", 17}, {"Get 0x3304", 0x10}});

struct PictureTest : testing::Test {
  OpenDialog open{PictureModel(), 1, kCustom};
  DialogDriver driver = open.Driver();
  RecordingChannel& projector = open.Projector();
};

TEST_F(PictureTest, TheButtonAfterANumberDoesWhatTheListOfResetsDoes) {
  const auto visible = [&] {
    std::vector<QToolButton*> buttons;
    for (auto* button : open.Page().findChildren<QToolButton*>())
      if (button->isVisible()) buttons.push_back(button);
    return buttons;
  };
  const auto hover = [&](int control) {
    QTest::mouseMove(&open.Page(), open.Page().GetDlgItem(control)->geometry().center());
    return visible();
  };
  EXPECT_TRUE(visible().empty());
  EXPECT_TRUE(hover(kGamma).empty()) << "there is no reset for it";
  ASSERT_EQ(hover(kContrast).size(), 1U);
  QToolButton* contrast = visible().front();
  EXPECT_EQ(contrast->accessibleName(), QStringLiteral("Reset: Contrast"));
  EXPECT_FALSE(contrast->icon().isNull());
  const QRect field = open.Page().GetDlgItem(20330)->geometry();
  EXPECT_EQ(contrast->geometry().left(), field.right() + 7);
  EXPECT_NEAR(contrast->geometry().center().y(), field.center().y(), 1);
  open.Page().setLayoutDirection(Qt::RightToLeft);
  QCoreApplication::processEvents();
  EXPECT_EQ(contrast->geometry().right(), open.Page().GetDlgItem(20330)->x() - 7);
  EXPECT_TRUE(hover(kIris).empty());
  hover(kContrast);
  QHoverEvent away(QEvent::HoverLeave, QPointF(), QPointF(), QPointF());
  QApplication::sendEvent(&open.Page(), &away);
  EXPECT_TRUE(visible().empty());
  QWidget* plus = open.Page().GetDlgItem(20139);
  plus->setFocus();
  EXPECT_EQ(visible(), std::vector{contrast});
  QTest::keyClick(plus, Qt::Key_Tab);
  EXPECT_TRUE(contrast->hasFocus());

  driver.Choose(20157, 3);
  projector.Take();
  QTest::mouseClick(contrast, Qt::LeftButton);
  const Strings byButton = projector.Take();
  EXPECT_EQ(byButton.front(), "ExecContrastReset");
  EXPECT_EQ(driver.Selected(20157), 3) << "the list keeps its selection";
  plus->setFocus();
  QTest::keyClick(plus, Qt::Key_Tab);
  QTest::keyClick(contrast, Qt::Key_Return);
  EXPECT_EQ(projector.Take(), byButton) << "by Enter";
}

TEST_F(PictureTest, ButtonsOpenTheCustomPopUpsOfCustomisableEntries) {
  for (const int i : {0, 1, 2, 3}) {
    driver.Choose(kGamma, i);
    EXPECT_EQ(driver.IsEnabled(kCustomGamma), i <= 1) << "21 is the last custom gamma";
    const QWidget& custom = driver.Item<QWidget>(kCustomGamma);
    EXPECT_EQ(custom.toolTip(),
              i <= 1 ? QString() : CatalogString(kListCategory, ListText::OnlyForCustomGamma));
    EXPECT_EQ(custom.accessibleDescription(), custom.toolTip());
    driver.Choose(kColorTemp, i);
    EXPECT_EQ(driver.IsEnabled(kCustomColorTemp), i >= 2) << "17 is the first custom temperature";
  }
  for (const char* read : {"Get 0x30A1", "Get 0x30B0"}) projector.Answer(read, 40);
  open.Page().InitDisp();
  for (const int id : {kCustomGamma, kCustomColorTemp}) EXPECT_FALSE(driver.IsEnabled(id));
  projector.Answer("Get 0x30A1", 17);
  open.Page().InitDisp();
  projector.Refuse("Get 0x30A1");
  open.Page().InitDisp();
  EXPECT_TRUE(driver.IsEnabled(kCustomGamma)) << "the disabled list still has its custom entry";
}

TEST(PicturePageOfSet4, FindsCustomEntriesByPositionAndItsPopUpsHaveNoResets) {
  OpenDialog open(PictureModel(4, 11), 1);
  const DialogDriver driver = open.Driver();
  EXPECT_FALSE(driver.IsEnabled(kCustomGamma)) << "nothing is selected";
  for (const int i : {3, 2, 1, 0}) {
    driver.Choose(kGamma, i);
    EXPECT_EQ(driver.IsEnabled(kCustomGamma), i <= 2) << i;
  }
  for (const int i : {0, 1, 2, 4, 3}) {
    driver.Choose(kColorTemp, i);
    EXPECT_EQ(driver.IsEnabled(kCustomColorTemp), i == 3) << i;
  }
  const auto look = [](CDialog& popup) { EXPECT_FALSE(popup.GetDlgItem(20336)->isVisible()); };
  WhenModal("CGammaDlg", look);
  driver.Click(kCustomGamma);
  WhenModal("CColorDlg", look);
  driver.Click(kCustomColorTemp);
}

TEST_F(PictureTest, AnUnknownIrisModeDoesNotChangeTheRow) {
  projector.Refuse("Get 0x3304");
  open.Page().InitDisp();
  projector.Accept("Get 0x3304");
  projector.Answer("Get 0x3304", 0x12);
  open.Page().InitDisp();
  EXPECT_EQ(driver.Selected(kIris), 1);
  EXPECT_FALSE(driver.IsEnabled(kIris)) << "as if it had not been read";
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisValueToIdx(0x11), 2);
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisValueToIdx(0x12), -1);
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisIdxToValue(0), 0);
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisIdxToValue(1), 0x10);
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisIdxToValue(3), static_cast<short>(0xFFFF));
}

TEST(PicturePages, SendAnEntryWithTheValueMinusOneLikeAnyOther) {
  CModelInfo2 model = PictureModel();
  for (CountedList* list : {&model.GammaList, &model.ColorTempList}) AddEntry(*list, -1, "none");
  OpenDialog open(model, 1);
  open.Driver().Choose(kGamma, 4);
  open.Driver().Choose(kColorTemp, 5);
  EXPECT_EQ(open.Projector().Take(), (Strings{"SetGamma 4", "Set 0x30B0 65535"}));
}

TEST(PicturePages, ShowTheMiddleAndNoEntryBeforeTheFirstRead) {
  for (const auto& [dialogType, modelCode] : {std::pair{5, 30}, {4, 11}}) {
    OpenDialog open(MakeModel(dialogType, modelCode), 1, Answers({{"Get 0x2201", -1}}));
    const DialogDriver driver = open.Driver();
    EXPECT_EQ(driver.SliderAt(20152), 4);
    driver.Item<QWidget>(20148).setEnabled(true);
    driver.Click(20148);
    EXPECT_EQ(open.Projector().TakeChanges(), Strings{"Dec 0x2201"}) << "not at its bound";
    open.Page().InitDisp();
    EXPECT_EQ(std::ranges::count(open.Projector().Take(), "Get 0x30A1"), 0);
    EXPECT_FALSE(driver.IsEnabled(kGamma)) << "a model without gammas";
    EXPECT_EQ(driver.Item<QWidget>(kGamma).toolTip(), CatalogString(5, 4305));
  }
}

TEST(PicturePages, APopUpBelongsToItsDialogAlsoIfAnotherOneIsInUse) {
  CModelInfo2 wide = PictureModel();
  wide.RangeText(RangeIndex::GammaPoint) = "78,178";
  OpenDialog first(wide, 1, kCustom);
  OpenDialog second(PictureModel(), 1, kCustom);
  Activate(second.Dialog());
  WhenModal("CGammaDlg", [&](CDialog& dialog) {
    EXPECT_EQ(dialog.Owner(), &first.Dialog());
    EXPECT_EQ(dialog.Item<QSlider>(20181).maximum(), 50);
    EXPECT_TRUE(dialog.GetDlgItem(20336)->isVisible()) << "with reset buttons";
  });
  first.Driver().Click(kCustomGamma);
  WhenModal("CColorDlg", [&](CDialog& dialog) {
    EXPECT_TRUE(dialog.GetDlgItem(20336)->isVisible());
    first.Projector().Take();
  });
  first.Driver().Click(kCustomColorTemp);
  EXPECT_EQ(first.Projector().Take(), Strings{}) << "the page reads nothing when it closes";
}

}  // namespace
