#include <QTest>
#include <gtest/gtest.h>

#include "pages/picture/CColorDlg.h"
#include "pages/picture/CGammaDlg.h"
#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

std::string Hex(int code) { return "0x" + QString::number(code, 16).toUpper().toStdString(); }

// A pop-up on the model data of an open dialog, all values at zero.
template <class Popup>
struct PopupTest : testing::Test {
  static CModelInfo2 Model() {
    CModelInfo2 model = MakeModel(5, 30);
    for (std::size_t i = 0; i < RangeIndex::Count; ++i) {
      model.RangeText(i) = "96," + std::to_string(161 + i);
    }
    return model;
  }
  static void Centred(RecordingChannel& projector) {
    for (int code = 0x3090; code <= 0x30B7; ++code) projector.Answer("Get " + Hex(code), 128);
  }

  PopupTest() {
    popup.projector = &open.Dialog().Projector();
    popup.Create();
    popup.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&popup));
    firstReads = projector.Take();
  }

  Strings Click(int id) {
    projector.Take();
    driver.Click(id);
    return projector.Take();
  }

  void ExpectBox(int error) {
    const auto seen = boxes.Take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, CatalogString(2201, error));
  }

  // The row's slider has the model's range; a refused drag is told and snaps back to 5.
  void ExpectSlider(int slider, const std::string& code, std::size_t range, int error) {
    EXPECT_EQ(driver.Item<QSlider>(slider).maximum(), 161 - 128 + range);
    projector.Take();
    driver.Drag(slider, 5);
    EXPECT_EQ(projector.Take(), Strings{"Set " + code + " 133"});
    projector.Refuse("Set " + code);
    driver.Drag(slider, 7);
    EXPECT_EQ(driver.SliderAt(slider), 5);
    ExpectBox(error);
    projector.Accept("Set " + code);
  }

  // A reset shows a value that is not below the lowest; the value remembered, 5, stays.
  void ExpectReset(int button, int field, const std::string& reset, const std::string& get,
                   int lowest) {
    for (const auto& [value, shown] : {std::pair{lowest - 1, 5}, {lowest, lowest}}) {
      projector.Answer(get, value + 128);
      EXPECT_EQ(Click(button), (Strings{reset, get}));
      EXPECT_EQ(driver.Text(field), QString::number(shown));
    }
    projector.Refuse(reset);
    EXPECT_EQ(Click(button), Strings{reset});
    EXPECT_TRUE(boxes.Take().empty());
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

TEST_F(GammaTest, ReadsAndSendsThePatternAndEveryPoint) {
  EXPECT_EQ(driver.Entries(20158), (QStringList{CatalogString(5, 3374), CatalogString(5, 3050),
                                                CatalogString(5, 3051), CatalogString(5, 52)}));
  projector.Refuse("Set 0x3080");
  driver.Choose(20158, 2);
  EXPECT_EQ(projector.Take(), Strings{"Set 0x3080 2"});
  ExpectBox(52);
  Strings reads{"Get 0x3080"};
  for (int point = 0; point < 8; ++point) {
    const std::string code = Hex(0x3090 + point);
    SCOPED_TRACE(code);
    reads.push_back("Get " + code);
    const int slider = point == 0 ? 20181 : 21023 + point;
    const int minus = point == 7 ? 20182 : 20160 + 3 * point, plus = minus + 1, field = minus + 2;
    const int error = 44 + point;
    ExpectSlider(slider, code, RangeIndex::GammaPoint + static_cast<std::size_t>(point), error);
    const std::string number = ' ' + std::to_string(point + 1);
    ExpectReset(20336 + point, field, "ExecUserGammaPReset" + number, "GetUserGammaPoint" + number,
                -16);
    projector.Answer("Get " + code, 128 + 6);
    EXPECT_EQ(Click(plus), (Strings{"Inc " + code, "Get " + code}));
    EXPECT_EQ(driver.Text(field), "6");
    projector.Refuse("Dec " + code);
    EXPECT_EQ(Click(minus), Strings{"Dec " + code});
    ExpectBox(error);
    driver.Drag(slider, 16);
    EXPECT_EQ(Click(plus), Strings{}) << "the slider goes on, the button does not";
    driver.Drag(slider, -16);
    EXPECT_EQ(Click(minus), Strings{});
  }
  EXPECT_EQ(firstReads, reads);
}

TEST_F(GammaTest, AFailedReadDisablesThePointButNeverThePatterns) {
  for (const char* read : {"Get 0x3080", "Get 0x3090"}) projector.Refuse(read);
  CGammaDlg other(false, &open.Dialog());
  other.projector = popup.projector;
  other.Create();
  EXPECT_FALSE(other.GetDlgItem(20181)->isEnabled());
  for (const int id : {20158, 20336, 21024}) EXPECT_TRUE(other.GetDlgItem(id)->isEnabled()) << id;
}

TEST_F(GammaTest, WithoutResetButtonsTheDialogIsNarrowerAndCloseStaysInside) {
  CGammaDlg plain(true, &open.Dialog());
  plain.projector = popup.projector;
  plain.Create();
  plain.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&plain));
  EXPECT_FALSE(plain.GetDlgItem(20336)->isVisible());
  EXPECT_GE(popup.width() - plain.width(), popup.GetDlgItem(20336)->width());
  const QRect close = plain.GetDlgItem(1)->geometry();
  EXPECT_EQ(plain.width() - close.right(), popup.width() - popup.GetDlgItem(1)->geometry().right());
}

// Steps go by channel and shown value, and a refused one is silent.
TEST_F(ColorTest, EveryRowHasItsCodeErrorAndReset) {
  Strings reads{"Get 0x3080"};
  for (int row = 0; row < 6; ++row) {
    const std::string code = Hex(row < 3 ? 0x30B1 + row : 0x30B2 + row);
    const std::string name = row < 3 ? "Gain" : "Offset";
    const std::string channel = name + "RGB"[row % 3], step = name + ' ' + std::to_string(row % 3);
    SCOPED_TRACE(channel);
    reads.push_back("Get " + code);
    const int slider = row == 0 ? 20181 : 21023 + row, field = 20194 + row;
    ExpectSlider(slider, code, RangeIndex::ColorTempAdjust + static_cast<std::size_t>(row),
                 38 + row);
    ExpectReset(20334 + row, field, "ExecColorTemp" + channel + "Reset", "GetColorTemp" + channel,
                -32);
    projector.Answer("IncrementColorTemp" + name, 6);
    EXPECT_EQ(Click(20188 + row), Strings{"IncrementColorTemp" + step + " 5"});
    EXPECT_EQ(driver.Text(field), "6");
    EXPECT_EQ(driver.SliderAt(slider), 6);
    projector.Refuse("DecrementColorTemp" + name);
    EXPECT_EQ(Click(20182 + row), Strings{"DecrementColorTemp" + step + " 6"});
    EXPECT_EQ(driver.Text(field), "6");
    EXPECT_TRUE(boxes.Take().empty());
    driver.Drag(slider, 32);
    EXPECT_EQ(Click(20188 + row), Strings{}) << "the slider goes on, the button does not";
    driver.Drag(slider, -32);
    EXPECT_EQ(Click(20182 + row), Strings{});
  }
  EXPECT_EQ(firstReads, reads);
}

}  // namespace
