#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "pages/picture/CColorDlg.h"
#include "pages/picture/CGammaDlg.h"
#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

// A pop-up on the model data of an open dialog, all values at zero.
template <class Popup>
struct PopupTest : testing::Test {
  static CModelInfo2 Model() {
    CModelInfo2 model = MakeModel(5, 30);
    model.RangeText(RangeIndex::GammaPoint + 1) = "100,156";
    model.RangeText(RangeIndex::ColorTempAdjust + 5) = "100,200";
    return model;
  }
  static void Centred(RecordingChannel& projector) {
    for (int code = 0x3090; code <= 0x30B7; ++code) {
      char key[16];
      std::snprintf(key, sizeof key, "Get 0x%04X", code);
      projector.Answer(key, 128);
    }
  }

  PopupTest() {
    popup.projector = &open.Dialog().Projector();
    popup.Create();
    popup.show();
    popup.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&popup));
    firstReads = projector.Take();
  }

  void ExpectBox(int errorNumber) {
    const auto seen = boxes.Take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, CatalogString(2201, errorNumber));
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
  }

  OpenDialog open{Model(), 0, Centred};
  RecordingChannel& projector = open.Projector();
  Popup popup{false, &open.Dialog()};
  DialogDriver driver{popup};
  MessageBoxes boxes;
  Strings firstReads;
};

using GammaTest = PopupTest<CGammaDlg>;
using ColorTest = PopupTest<CColorDlg>;

TEST_F(GammaTest, ReadsPatternAndPointsAndTakesRangesFromTheModel) {
  EXPECT_EQ(firstReads,
            (Strings{"Get 0x3080", "Get 0x3090", "Get 0x3091", "Get 0x3092", "Get 0x3093",
                     "Get 0x3094", "Get 0x3095", "Get 0x3096", "Get 0x3097"}));
  EXPECT_EQ(driver.Item<QSlider>(20181).maximum(), 16);
  EXPECT_EQ(driver.Item<QSlider>(21024).minimum(), -28);
  EXPECT_EQ(driver.Entries(20158), (QStringList{CatalogString(5, 3374), CatalogString(5, 3050),
                                                CatalogString(5, 3051), CatalogString(5, 52)}));
}

TEST_F(GammaTest, ButtonsStopAtSixteenWhateverTheRange) {
  driver.Drag(21024, 16);
  projector.Take();
  driver.Click(20164);
  EXPECT_EQ(projector.Take(), Strings{}) << "the slider goes on to 28, the button does not";
  driver.Drag(21024, -16);
  projector.Take();
  driver.Click(20163);
  EXPECT_EQ(projector.Take(), Strings{});
  projector.Answer("Get 0x3091", 128 - 15);
  driver.Click(20164);
  EXPECT_EQ(projector.Take(), (Strings{"Inc 0x3091", "Get 0x3091"}));
  EXPECT_EQ(driver.Text(20165), QStringLiteral("-15"));
}

TEST_F(GammaTest, RefusalsTellAndSnapBack) {
  projector.Refuse("Set 0x3092");
  driver.Drag(21025, 9);
  EXPECT_EQ(projector.Take(), Strings{"Set 0x3092 137"});
  EXPECT_EQ(driver.SliderAt(21025), 0);
  ExpectBox(46);
  projector.Refuse("Dec 0x3097");
  driver.Click(20182);
  ExpectBox(51);
  projector.Refuse("Set 0x3080");
  driver.Choose(20158, 2);
  EXPECT_EQ(projector.Take(), (Strings{"Dec 0x3097", "Set 0x3080 2"}));
  ExpectBox(52);
  EXPECT_EQ(driver.Selected(20158), 2);
}

TEST_F(GammaTest, AResetShowsItsValueButTheBoundTestKeepsTheOldOne) {
  driver.Drag(20181, 16);
  projector.Take();
  projector.Answer("GetUserGammaPoint 1", 112);
  driver.Click(20336);
  EXPECT_EQ(projector.Take(), (Strings{"ExecUserGammaPReset 1", "GetUserGammaPoint 1"}));
  EXPECT_EQ(driver.Text(20162), QStringLiteral("-16"));
  EXPECT_EQ(driver.SliderAt(20181), -16);
  driver.Click(20161);
  EXPECT_EQ(projector.Take(), Strings{}) << "the remembered value is still 16";

  projector.Answer("GetUserGammaPoint 1", 111);
  driver.Drag(20181, 3);
  driver.Click(20336);
  EXPECT_EQ(driver.Text(20162), QStringLiteral("3")) << "below the lowest value";
  projector.Take();
  projector.Refuse("ExecUserGammaPReset 1");
  driver.Click(20336);
  EXPECT_EQ(projector.Take(), Strings{"ExecUserGammaPReset 1"});
  EXPECT_TRUE(boxes.Take().empty());
}

TEST_F(GammaTest, AFailedReadDisablesThePoint) {
  projector.Refuse("Get 0x3090");
  CGammaDlg other(false, &open.Dialog());
  other.projector = popup.projector;
  other.Create();
  EXPECT_FALSE(other.GetDlgItem(20181)->isEnabled());
  EXPECT_TRUE(other.GetDlgItem(20336)->isEnabled());
  EXPECT_TRUE(other.GetDlgItem(21024)->isEnabled());
}

TEST_F(GammaTest, WithoutResetButtonsTheDialogIsNarrowerAndCloseStaysInside) {
  CGammaDlg plain(true, &open.Dialog());
  plain.projector = popup.projector;
  plain.Create();
  plain.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&plain));
  EXPECT_FALSE(plain.GetDlgItem(20336)->isVisible());
  const int saved = popup.width() - plain.width();
  EXPECT_GE(saved, popup.GetDlgItem(20336)->width());
  const QRect close = plain.GetDlgItem(1)->geometry();
  EXPECT_EQ(plain.width() - close.right(), popup.width() - popup.GetDlgItem(1)->geometry().right());
}

TEST_F(ColorTest, StepsGoByChannelAndShownValue) {
  projector.Answer("IncrementColorTempGain", 1);
  driver.Click(20189);
  EXPECT_EQ(projector.Take(), Strings{"IncrementColorTempGain 1 0"});
  EXPECT_EQ(driver.Text(20195), QStringLiteral("1"));
  EXPECT_EQ(driver.SliderAt(21024), 1);
  projector.Refuse("DecrementColorTempOffset");
  driver.Click(20187);
  EXPECT_EQ(projector.Take(), Strings{"DecrementColorTempOffset 2 0"});
  EXPECT_EQ(driver.Text(20199), QStringLiteral("0"));
  EXPECT_TRUE(boxes.Take().empty()) << "refused steps are silent here";
}

TEST_F(ColorTest, ButtonsStopAtThirtyTwo) {
  driver.Drag(21028, 32);
  driver.Drag(20181, -32);
  projector.Take();
  driver.Click(20193);
  driver.Click(20182);
  EXPECT_EQ(projector.Take(), Strings{});
  EXPECT_EQ(driver.Item<QSlider>(21028).maximum(), 72) << "the model's own range";
}

TEST_F(ColorTest, EveryRowHasItsCodeErrorAndReset) {
  const struct {
    int slider, field, reset, error;
    const char* code;
    const char* channel;
  } rows[] = {
      {20181, 20194, 20334, 38, "0x30B1", "GainR"},
      {21024, 20195, 20335, 39, "0x30B2", "GainG"},
      {21025, 20196, 20336, 40, "0x30B3", "GainB"},
      {21026, 20197, 20337, 41, "0x30B5", "OffsetR"},
      {21027, 20198, 20338, 42, "0x30B6", "OffsetG"},
      {21028, 20199, 20339, 43, "0x30B7", "OffsetB"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.channel);
    const std::string set = std::string("Set ") + row.code;
    driver.Drag(row.slider, 5);
    EXPECT_EQ(projector.Take(), Strings{set + " 133"});
    projector.Refuse(set);
    driver.Drag(row.slider, 7);
    EXPECT_EQ(driver.SliderAt(row.slider), 5) << "snaps back";
    ExpectBox(row.error);
    projector.Take();
    const std::string get = std::string("GetColorTemp") + row.channel;
    const std::string reset = std::string("ExecColorTemp") + row.channel + "Reset";
    projector.Answer(get, 95);
    driver.Click(row.reset);
    EXPECT_EQ(projector.Take(), (Strings{reset, get}));
    EXPECT_EQ(driver.Text(row.field), QStringLiteral("5"));
    projector.Answer(get, 96);
    driver.Click(row.reset);
    EXPECT_EQ(driver.Text(row.field), QStringLiteral("-32"));
    projector.Take();
    projector.Refuse(reset);
    driver.Click(row.reset);
    EXPECT_EQ(projector.Take(), Strings{reset});
  }
}

}  // namespace
