#include <QMessageBox>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/picture/CPictureTabType5Dlg.h"
#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

CModelInfo2 PictureModel(int modelCode = 30) {
  CModelInfo2 model = MakeModel(5, modelCode);
  for (const int value : {17, 21, 22, 33}) AddEntry(model.GammaList, value, "gamma");
  for (const int value : {2, 16, 17, 18}) AddEntry(model.ColorTempList, value, "temperature");
  model.RangeText(RangeIndex::Brightness) = "96,160";
  model.RangeText(RangeIndex::Sharpness) = "120,130";
  return model;
}

void Centred(RecordingChannel& projector) {
  for (const char* key : {"Get 0x2003", "Get 0x2004", "Get 0x2202", "Get 0x2203"}) {
    projector.Answer(key, 128);
  }
  projector.Answer("Get 0x2201", 128);
  projector.Answer("Get 0x30A1", 17);
  projector.Answer("Get 0x30B0", 17);
  projector.Answer("Get 0x3304", 0x10);
}

struct PictureTest : testing::Test {
  OpenDialog open{PictureModel(), 1, Centred};
  DialogDriver driver = open.Driver();
  RecordingChannel& projector = open.Projector();
  MessageBoxes boxes;

  void ExpectBox(int errorNumber) {
    const auto seen = boxes.Take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, CatalogString(2201, errorNumber));
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
  }
};

const Strings kReads{"Get 0x2003", "Get 0x2004", "Get 0x2202", "Get 0x2203",
                     "Get 0x2201", "Get 0x30A1", "Get 0x30B0", "Get 0x3304"};

struct SliderCase {
  int minus, slider, plus, field;
  const char* code;
  const char* setter;
  int bias;
  int error;
};

const SliderCase kSliders[] = {
    {20134, 20136, 20135, 20329, "0x2003", "SetBrightness", 128, 58},
    {20137, 20138, 20139, 20330, "0x2004", "SetContrast", 128, 59},
    {20147, 20151, 20149, 20331, "0x2202", "SetColor", 128, 60},
    {21061, 21062, 21063, 20332, "0x2203", "SetTint", 128, 15},
    {20148, 20152, 20150, 20333, "0x2201", "SetSharpness", 124, 17},
};

TEST_F(PictureTest, ARefreshReadsEveryRowOnceAndShowsIt) {
  open.Page().InitDisp();
  EXPECT_EQ(projector.Take(), kReads);
  EXPECT_EQ(driver.Text(20329), QStringLiteral("0"));
  EXPECT_EQ(driver.Text(20333), QStringLiteral("4")) << "sharpness has its own zero point";
  EXPECT_EQ(driver.SliderAt(20152), 4);
  EXPECT_EQ(driver.Selected(20142), 0);
  EXPECT_EQ(driver.Text(20293), QStringLiteral("Theater"));
}

TEST_F(PictureTest, StepsReadBackAndRefusedStepsTell) {
  for (const SliderCase& row : kSliders) {
    SCOPED_TRACE(row.setter);
    const std::string code = row.code;
    const int before = driver.SliderAt(row.slider);
    projector.Answer("Get " + code, row.bias + before + 1);
    driver.Click(row.plus);
    EXPECT_EQ(projector.Take(), (Strings{"Inc " + code, "Get " + code}));
    EXPECT_EQ(driver.SliderAt(row.slider), before + 1);
    EXPECT_EQ(driver.Text(row.field), QString::number(before + 1));

    projector.Refuse("Get " + code);
    driver.Click(row.minus);
    EXPECT_EQ(projector.Take(), (Strings{"Dec " + code, "Get " + code}));
    EXPECT_EQ(driver.Text(row.field), QString::number(before + 1)) << "a failed read-back";

    projector.Refuse("Dec " + code);
    driver.Click(row.minus);
    EXPECT_EQ(projector.Take(), Strings{"Dec " + code});
    EXPECT_EQ(driver.SliderAt(row.slider), before + 1);
    ExpectBox(row.error);
    EXPECT_TRUE(driver.IsEnabled(row.minus)) << "usable after the box";
  }
}

TEST_F(PictureTest, AtItsBoundAStepSendsNothing) {
  projector.Answer("Get 0x2003", 160);
  projector.Answer("Get 0x2201", 120);
  open.Page().InitDisp();
  projector.Take();
  driver.Click(20135);
  driver.Click(20148);
  EXPECT_EQ(projector.Take(), Strings{});
  EXPECT_TRUE(boxes.Take().empty());
  driver.Click(20134);
  EXPECT_EQ(projector.Take().front(), "Dec 0x2003");
}

TEST_F(PictureTest, ADragSendsOnceAndARefusedDragStaysQuietly) {
  for (const SliderCase& row : kSliders) {
    SCOPED_TRACE(row.setter);
    const std::string setter = row.setter;
    driver.Drag(row.slider, 3);
    EXPECT_EQ(projector.Take(), Strings{setter + ' ' + std::to_string(3 + row.bias)});
    EXPECT_EQ(driver.Text(row.field), QStringLiteral("3"));
    projector.Refuse(setter);
    driver.Drag(row.slider, 5);
    EXPECT_EQ(projector.Take(), Strings{setter + ' ' + std::to_string(5 + row.bias)});
    EXPECT_EQ(driver.SliderAt(row.slider), 5) << "the slider stays where the user left it";
    EXPECT_EQ(driver.Text(row.field), QStringLiteral("3")) << "the field keeps the accepted value";
    EXPECT_TRUE(boxes.Take().empty());
  }
}

TEST_F(PictureTest, AFailedReadTakesTheRowOutOfUseUntilTheNextGoodOne) {
  for (const char* key : {"Get 0x2003", "Get 0x30A1", "Get 0x30B0", "Get 0x3304"}) {
    projector.Refuse(key);
  }
  open.Page().InitDisp();
  for (const int id : {20134, 20136, 20135, 20142, 20144, 20293}) {
    EXPECT_FALSE(driver.IsEnabled(id)) << id;
  }
  EXPECT_EQ(driver.Text(20329), QString());
  EXPECT_TRUE(driver.IsEnabled(20133)) << "the disabled list still has its custom entry selected";
  projector.Accept("Get 0x2003");
  open.Page().InitDisp();
  EXPECT_TRUE(driver.IsEnabled(20136));
  EXPECT_EQ(driver.Text(20329), QStringLiteral("0"));
}

TEST_F(PictureTest, GammaIsSentByPositionAndColourTemperatureByValue) {
  driver.Choose(20142, 1);
  EXPECT_EQ(projector.Take(), Strings{"SetGamma 1"});
  EXPECT_TRUE(driver.IsEnabled(20133)) << "21 is the last custom gamma";
  driver.Choose(20142, 2);
  EXPECT_FALSE(driver.IsEnabled(20133));

  projector.Take();
  driver.Choose(20144, 1);
  EXPECT_EQ(projector.Take(), Strings{"Set 0x30B0 16"});
  EXPECT_FALSE(driver.IsEnabled(20143));
  projector.Refuse("Set 0x30B0");
  driver.Choose(20144, 2);
  EXPECT_EQ(projector.Take(), Strings{"Set 0x30B0 17"});
  ExpectBox(61);
  EXPECT_EQ(driver.Selected(20144), 2) << "the choice stays until the next refresh";
  EXPECT_TRUE(driver.IsEnabled(20143)) << "17 is the first custom temperature";
}

TEST_F(PictureTest, AValueOutsideTheListsSelectsNothing) {
  projector.Answer("Get 0x30A1", 40);
  projector.Answer("Get 0x30B0", 40);
  projector.Answer("Get 0x3304", 0x12);
  open.Page().InitDisp();
  EXPECT_EQ(driver.Selected(20142), -1);
  EXPECT_EQ(driver.Selected(20144), -1);
  EXPECT_FALSE(driver.IsEnabled(20133));
  EXPECT_FALSE(driver.IsEnabled(20143));
  EXPECT_EQ(driver.Entries(20142).size(), 4) << "the value is not added";
  EXPECT_EQ(driver.Text(20293), QStringLiteral("Theater")) << "the iris row stays as it was";
}

TEST_F(PictureTest, ActiveIrisSendsItsTableValue) {
  driver.Choose(20293, 2);
  EXPECT_EQ(projector.Take(), Strings{"Set 0x3304 17"});
  projector.Refuse("Set 0x3304");
  driver.Choose(20293, 0);
  ExpectBox(78);
  EXPECT_EQ(driver.Selected(20293), 0);
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisValueToIdx(0x11), 2);
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisValueToIdx(0x12), -1);
  EXPECT_EQ(CPictureTabType5Dlg::ActIrisIdxToValue(1), 0x10);
}

TEST_F(PictureTest, MemoriesRefreshOnlyOnSuccess) {
  driver.Choose(21064, 5);
  EXPECT_EQ(projector.Take(), Strings{});
  driver.Click(21065);
  Strings expected{"SetMyMemory 5"};
  expected.insert(expected.end(), kReads.begin(), kReads.end());
  EXPECT_EQ(projector.Take(), expected);
  projector.Refuse("SetMyMemory");
  driver.Click(21065);
  EXPECT_EQ(projector.Take(), Strings{"SetMyMemory 5"});
  EXPECT_TRUE(boxes.Take().empty());
}

TEST_F(PictureTest, ResetsRunWithoutAQuestionAndAlwaysRefresh) {
  const char* resets[] = {"ExecBrightnessReset", "ExecContrastReset", "ExecColorReset",
                          "ExecTintReset", "ExecSharpnessReset"};
  for (int i = 0; i < 5; ++i) {
    projector.Refuse(resets[i]);
    driver.Choose(20157, i);
    driver.Click(21070);
    Strings expected{resets[i]};
    expected.insert(expected.end(), kReads.begin(), kReads.end());
    EXPECT_EQ(projector.Take(), expected);
  }
  driver.Item<CComboBox>(20157).Select(-1);
  driver.Click(21070);
  EXPECT_EQ(projector.Take(), kReads) << "without a selection nothing is reset";
  EXPECT_TRUE(boxes.Take().empty());
}

TEST_F(PictureTest, RangesComeFromTheModelOrHaveDefaults) {
  EXPECT_EQ(driver.Item<QSlider>(20136).maximum(), 32);
  EXPECT_EQ(driver.Item<QSlider>(20152).minimum(), -4);
  EXPECT_EQ(driver.Item<QSlider>(20152).maximum(), 6);
  CModelInfo2 bare = MakeModel(5, 30);
  OpenDialog other(bare, 1, [](RecordingChannel& channel) { channel.Refuse("Get 0x2201"); });
  EXPECT_EQ(other.Driver().Item<QSlider>(21062).minimum(), -32);
  EXPECT_EQ(other.Driver().Item<QSlider>(20152).maximum(), 7);
  EXPECT_EQ(other.Driver().SliderAt(20152), 4) << "the middle, until a value is read";
  EXPECT_EQ(other.Driver().Entries(20142).size(), 0);
  EXPECT_FALSE(other.Driver().IsEnabled(20142)) << "a model without gammas";
}

TEST(PictureRows, OnlySomeModelsHaveTheActiveIris) {
  for (const int code : {22, 29, 30, 31, 32, 40, 41, 42, 43, 44, 46, 49, 50, 51, 52, 53, 54, 55}) {
    SCOPED_TRACE(code);
    const bool has = std::set{30, 31, 41, 43, 46, 51, 52, 54}.contains(code);
    OpenDialog open(MakeModel(5, code), 1);
    DialogDriver driver = open.Driver();
    EXPECT_EQ(driver.Item<QWidget>(20293).isVisible(), has);
    EXPECT_EQ(driver.Item<QWidget>(20621).isVisible(), has);
    open.Page().InitDisp();
    const Strings reads = open.Projector().Take();
    EXPECT_EQ(std::ranges::count(reads, "Get 0x3304"), has ? 1 : 0);
    const auto y = [&](int id) { return driver.Item<QWidget>(id).geometry().center().y(); };
    const int pitch = y(20536) - y(20534);
    EXPECT_EQ(y(20601) - y(20599), has ? 2 * pitch : pitch) << "My Memory follows without a gap";
  }
}

TEST(PictureRows, BeforeAnythingIsKnownTheListsShowNothing) {
  OpenDialog open(PictureModel(), 1, [](RecordingChannel& projector) {
    projector.Refuse("Get 0x30A1");
    projector.Answer("Get 0x3304", 0x12);
  });
  DialogDriver driver = open.Driver();
  EXPECT_EQ(driver.Selected(20142), -1);
  EXPECT_FALSE(driver.IsEnabled(20133));
  EXPECT_EQ(driver.Selected(20293), -1);
  EXPECT_EQ(driver.Text(21064), QStringLiteral("Load1"));
}

TEST(PictureRows, WithTwoDialogsOpenAPopUpBelongsToTheOneInUse) {
  CModelInfo2 wide = PictureModel();
  wide.RangeText(RangeIndex::GammaPoint) = "78,178";
  OpenDialog first(wide, 1, Centred);
  OpenDialog second(PictureModel(), 1, Centred);
  first.Dialog().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&first.Dialog()));
  WhenModal("CGammaDlg", [&](CDialog& dialog) {
    EXPECT_EQ(dialog.Owner(), &first.Dialog());
    EXPECT_EQ(dialog.Item<QSlider>(20181).maximum(), 50);
  });
  first.Driver().Click(20133);
}

TEST_F(PictureTest, TheCustomButtonsOpenTheirDialogs) {
  WhenModal("CGammaDlg", [&](CDialog& dialog) {
    EXPECT_EQ(dialog.Owner(), &open.Dialog());
    EXPECT_TRUE(dialog.GetDlgItem(20336)->isVisible()) << "with reset buttons";
    projector.Take();
  });
  driver.Click(20133);
  EXPECT_EQ(projector.Take(), Strings{}) << "the page reads nothing when the dialog closes";
  WhenModal("CColorDlg", [&](CDialog&) { projector.Take(); });
  driver.Click(20143);
  EXPECT_EQ(projector.Take(), Strings{});
}

}  // namespace
