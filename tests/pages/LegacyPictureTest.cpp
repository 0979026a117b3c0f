// The picture and image pages of the older page sets.

#include <gtest/gtest.h>

#include "tests/support/NumberedCatalog.h"
#include "tests/support/RowCases.h"

namespace {

using Strings = std::vector<std::string>;

CModelInfo2 Model(int dialogType, int modelCode) {
  CModelInfo2 model = MakeModel(dialogType, modelCode);
  for (const int value : {0, 1, 8}) AddEntry(model.AspectList, value, "aspect");
  for (const int value : {33, 34, 16, 17}) AddEntry(model.GammaList, value, "gamma");
  for (const int value : {1, 2, 3, 17, 18}) AddEntry(model.ColorTempList, value, "temperature");
  return model;
}

// A value row: read at `value`, dragged to `by` more, stepped; a refused drag is told and undone.
RowCase Slider(const ValueIds& ids, const std::string& code, int value, int bias, int error,
               int by = 1) {
  const std::string drag = "Set " + code + ' ' + std::to_string(value + by);
  const std::vector<Use> uses{{ids.slider, value - bias + by, {drag}},
                              {ids.plus, 0, {"Inc " + code, "Get " + code}},
                              {ids.minus, 0, {"Dec " + code, "Get " + code}}};
  return {ids.slider, "Get " + code, value, std::to_string(value - bias),
          uses,       "Set " + code, error};
}

RowCase Field(int field, int up, int down, const std::string& code, int error) {
  const std::vector<Use> uses{{up, 0, {"Inc " + code, "Get " + code}},
                              {down, 0, {"Dec " + code, "Get " + code}}};
  return {field, "Get " + code, 300, "300", uses, "Inc " + code, error};
}

// A list, of which a position is chosen.
RowCase List(int list, const std::string& read, int value, const std::string& shown, int position,
             const std::string& sent, int error = 0, const std::string& after = {}) {
  const std::string refuse = error != 0 ? sent.substr(0, sent.rfind(' ')) : std::string();
  return {list, read, value, shown, {{list, position, {sent}}}, refuse, error, after};
}

struct PageCase {
  const char* name;
  int dialogType, modelCode, tab, resetList, resetButton;
  std::vector<std::pair<QString, std::string>> resets;  // number of the text, operation
  std::vector<RowCase> rows;
  int actionButton = 0;
  std::string action{};
};

class LegacyPicture : public testing::TestWithParam<PageCase> {};

TEST_P(LegacyPicture, EveryRowReadsSendsAndTells) {
  const PageCase& page = GetParam();
  ExpectRowCases(Model(page.dialogType, page.modelCode), page.tab, page.rows);
}

// clang-format off
const PageCase kPages[] = {
    {"Pic", 4, 11, 1, 20157, 21070, {{"3105", "ExecBrightnessReset"}, {"106", "ExecContrastReset"}, {"290", "ExecColorReset"}, {"291", "ExecTintReset"}, {"292", "ExecSharpnessReset"}}, {
        Slider({20134, 20136, 20135, 20329}, "0x2003", 130, 128, 58),
        Slider({20137, 20138, 20139, 20330}, "0x2004", 130, 128, 59),
        Slider({20147, 20151, 20149, 20331}, "0x2202", 130, 128, 60),
        Slider({21061, 21062, 21063, 20332}, "0x2203", 130, 128, 15),
        Slider({20148, 20152, 20150, 20333}, "0x2201", 130, 128, 17),
        List(20142, "Get 0x30A1", 34, "#3-Default", 2, "SetGamma 2"),
        List(20144, "Get 0x30B0", 2, "Mid", 3, "Set 0x30B0 17", 61),
        List(20145, "Get 0x2207", 1, "TV", 2, "SetProgressive 2")}, 21065, "SetMyMemory"},
    {"Picture1", 1, 1, 2, 21068, 21069, {{"296", "ExecColorBalRReset"}, {"297", "ExecColorBalGReset"}, {"298", "ExecColorBalBReset"}, {"292", "ExecSharpnessReset"}, {"290", "ExecColorReset"}, {"291", "ExecTintReset"}}, {
        List(21045, "Get 0x30A1", 34, "#3-Default", 2, "SetGamma 2"),
        Slider({20801, 21047, 20802, 21121}, "0x30A0", 130, 128, 77),
        List(21049, "Get 0x30B0", 2, "Mid", 3, "Set 0x30B0 17", 61),
        List(21050, "Get 0x30B1", 128, "0", 0, "Set 0x30B1 96", 74),
        List(21051, "Get 0x30B2", 97, "-31", 64, "Set 0x30B2 160", 75),
        List(21052, "Get 0x30B3", 137, "9", 33, "Set 0x30B3 129", 76),
        Slider({20803, 21067, 20804, 21122}, "0x2005", 130, 128, 73),
        Slider({20805, 21039, 20806, 21123}, "0x2012", 130, 128, 81),
        Slider({20807, 21042, 20808, 21124}, "0x2006", 130, 128, 72),
        Slider({20809, 21055, 20810, 21125}, "0x2201", 130, 128, 17),
        Slider({20811, 21058, 20812, 21126}, "0x2202", 130, 128, 60),
        Slider({20813, 21061, 20814, 21127}, "0x2203", 130, 128, 15)}, 21064, "SetMyMemory"},
    {"Picture12", 2, 14, 2, 20029, 21069, {{"296", "ExecColorBalRReset"}, {"298", "ExecColorBalBReset"}, {"292", "ExecSharpnessReset"}, {"290", "ExecColorReset"}, {"291", "ExecTintReset"}}, {
        Slider({20801, 21067, 20802, 21122}, "0x2005", 130, 128, 73),
        Slider({20803, 21042, 20804, 21124}, "0x2006", 130, 128, 72),
        Slider({20805, 21055, 20806, 21125}, "0x2201", 130, 128, 17),
        Slider({20807, 21058, 20808, 21126}, "0x2202", 130, 128, 60),
        Slider({20809, 21061, 20810, 21127}, "0x2203", 130, 128, 15)}},
    {"Picture2", 1, 1, 3, 21073, 21078, {{"299", "ExecVPosReset"}, {"300", "ExecHPosReset"}, {"301", "ExecHSizeReset"}, {"302", "ExecOverScanReset"}}, {
        Field(20021, 21054, 21055, "0x2100", 54),
        Field(20022, 21052, 21053, "0x2101", 54),
        Slider({20801, 21071, 20802, 21117}, "0x2103", 20, 0, 55),
        Field(21109, 20804, 20803, "0x2102", 56),
        Slider({20805, 21050, 20806, 21115}, "0x2209", 7, 0, 53)}},
    {"Picture22", 2, 14, 3, 20042, 20043, {{"299", "ExecVPosReset"}, {"300", "ExecHPosReset"}, {"301", "ExecHSizeReset"}, {"363", "ExecOverScanReset"}}, {
        Field(20045, 20031, 20033, "0x2100", 54),
        Field(20044, 20034, 20032, "0x2101", 54),
        Slider({20801, 20036, 20802, 20038}, "0x2103", 20, 0, 55),
        Field(20040, 20804, 20803, "0x2102", 56),
        List(20030, "Get 0x2209", 7, "7", 10, "Set 0x2209 10", 53)}},
    {"Image", 3, 10, 3, 20120, 20643, {{"107", "ExecKeyStoneReset"}}, {
        Slider({21046, 21045, 21047, 21117}, "0x2007", 30, 128, 64, 225),
        List(20112, "Get 0x3000", 32, "MyScreen", 1, "SetBlankColor 5"),
        List(20113, "Get 0x3001", 1, "On", 0, "SetStartup 0"),
        List(20114, "Get 0x3004", 1, "H Inverse", 3, "SetMirror 3"),
        List(20116, "Get 0x2300", 2, "Component", 1, "SetPinPInput 1"),
        List(20117, "Get 0x2301", 2, "Bottom Left", 1, "SetPinPPosition 1"),
        List(20118, "Get 0x2302", 1, "Video", 0, "SetPinPAudio 0"),
        List(20119, "Get 0x2303", 1, "Large", 2, "SetPinPSize 2"),
        List(20115, "Get 0x30A1", 34, "#3-Default", 2, "SetGamma 2"),
        List(20121, "Get 0x30B0", 2, "Mid", 2, "Set 0x30A1 3", 343, "High")}},
    {"Image4", 5, 30, 2, 20214, 20216, {{"302", "ExecOverScanReset"}, {"299", "ExecVPosReset"}, {"300", "ExecHPosReset"}, {"301", "ExecHSizeReset"}}, {
        List(20200, "Get 0x2008", 1, "16:9", 2, "SetAspect 2"),
        Slider({20046, 20047, 20048, 20049}, "0x2209", 7, 0, 53),
        Field(20205, 20202, 20204, "0x2100", 54),
        Field(20206, 20201, 20203, "0x2101", 54),
        Slider({20207, 20209, 20208, 20210}, "0x2103", 20, 0, 55),
        Field(20212, 20213, 20211, "0x2102", 56)}, 20215, "ExecAutoAdjust"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Pages, LegacyPicture, testing::ValuesIn(kPages),
                         [](const auto& page) { return page.param.name; });

// A reset is done when it returns 0, a memory when it returns anything else.
TEST_P(LegacyPicture, IsReadAgainAfterAResetOrActionThatIsDone) {
  const PageCase& page = GetParam();
  NumberedCatalog numbers;
  OpenDialog open(Model(page.dialogType, page.modelCode), page.tab);
  const DialogDriver driver = open.Driver();
  open.Page().InitDisp();
  const Strings reads = open.Projector().Take();
  const auto expect = [&](int button, const std::string& operation, const std::string& sent) {
    driver.Click(button);
    Strings expected{sent};
    expected.insert(expected.end(), reads.begin(), reads.end());
    EXPECT_EQ(open.Projector().Take(), expected);
    open.Projector().Refuse(operation);
    driver.Click(button);
    EXPECT_EQ(open.Projector().Take(), Strings{sent});
  };
  EXPECT_EQ(driver.Entries(page.resetList).size(), std::ssize(page.resets));
  for (int i = 0; const auto& [text, operation] : page.resets) {
    driver.Choose(page.resetList, i++);
    EXPECT_EQ(driver.Text(page.resetList), text);
    expect(page.resetButton, operation, operation);
  }
  if (page.actionButton == 0) return;
  expect(page.actionButton, page.action, page.action + (page.action[0] == 'S' ? " 0" : ""));
}

TEST(LegacyPictureRanges, ComeFromTheModelOrHaveDefaults) {
  const struct {
    int dialogType, modelCode, tab, slider;
    std::size_t text;
    Range standard;
  } sliders[] = {
      // clang-format off
      {4, 11, 1, 20136, 17, {-32, 32}}, {4, 11, 1, 20152, 26, {1, 5}}, {1, 1, 2, 21047, 29, {-32, 32}},
      {1, 1, 2, 21067, 23, {-32, 32}}, {1, 3, 2, 21039, 24, {-63, 63}}, {1, 1, 2, 21055, 26, {-8, 8}},
      {2, 3, 2, 21042, 25, {-63, 63}}, {2, 14, 2, 21055, 26, {-6, 6}}, {2, 14, 2, 21058, 27, {-63, 63}},
      {1, 1, 3, 21050, 15, {0, 10}}, {4, 11, 2, 20209, 16, {0, 31}},
      // clang-format on
  };
  for (const auto& row : sliders) {
    SCOPED_TRACE(row.slider);
    CModelInfo2 model = Model(row.dialogType, row.modelCode);
    const auto range = [&] {
      OpenDialog open(model, row.tab);
      const auto& slider = open.Driver().Item<QSlider>(row.slider);
      return Range{slider.minimum(), slider.maximum()};
    };
    EXPECT_EQ(range(), row.standard);
    model.RangeText(row.text) = "130,140";
    EXPECT_EQ(range().maximum, row.standard.minimum == 0 ? 140 : 12);
  }
}

TEST(LegacyPictureRefusals, AreReadBackOnThePicturePages) {
  OpenDialog open(Model(4, 11), 1);
  MessageBoxes boxes;
  for (const char* key : {"Set 0x2004", "Inc 0x2004", "Set 0x30B0"}) open.Projector().Refuse(key);
  open.Projector().Answer("Get 0x2004", 133);  // meanwhile changed at the projector
  open.Driver().Drag(20138, 20);
  EXPECT_EQ(open.Projector().Take(), (Strings{"Set 0x2004 148", "Get 0x2004"}));
  EXPECT_EQ(open.Driver().SliderAt(20138), 5);
  open.Driver().Click(20139);
  EXPECT_EQ(open.Projector().Take(), (Strings{"Inc 0x2004", "Get 0x2004"}));
  open.Projector().Answer("Get 0x30B0", 3);
  open.Driver().Choose(20144, 3);
  EXPECT_EQ(open.Driver().Selected(20144), 2);
  EXPECT_FALSE(open.Driver().IsEnabled(20143)) << "the button follows the value read back";
  EXPECT_EQ(boxes.Take().size(), 3U);
}

TEST(LegacyPictureTexts, BrightnessProgressiveAndColorTempHaveTheirOwn) {
  NumberedCatalog numbers;
  OpenDialog pic(Model(4, 11), 1);
  EXPECT_EQ(pic.Driver().Text(20534), QStringLiteral("1073"));
  EXPECT_EQ(pic.Driver().Entries(20145), (QStringList{"30", "TV", "326"}));
  OpenDialog picture1(Model(1, 1), 2);
  EXPECT_EQ(picture1.Driver().Entries(21049).mid(2), (QStringList{"2253", "2267", "2268"}));
}

TEST(LegacyPictureRows, SomeModelsLackOne) {
  const struct {
    int dialogType, modelCode, tab;
    std::vector<int> lacks;
    std::string read;
    int labels[3];  // of rows that follow each other without a gap then
  } pages[] = {
      // clang-format off
      {4, 9, 1, {20146, 20392, 20145}, "Get 0x2207", {20597, 20599, 20601}},
      {4, 22, 1, {20146, 20392, 20145}, "Get 0x2207", {20597, 20599, 20601}},
      {2, 15, 3, {20482, 20489, 20030}, "Get 0x2209", {20611, 20601, 20602}},
      {3, 71, 3, {20601, 20701, 21046, 21045, 21047, 21117}, "Get 0x2007", {20602, 20603, 20604}}};
  // clang-format on
  for (const auto& page : pages) {
    OpenDialog open(Model(page.dialogType, page.modelCode), page.tab);
    open.Page().InitDisp();
    EXPECT_EQ(std::ranges::count(open.Projector().Take(), page.read), 0);
    for (const int id : page.lacks) EXPECT_FALSE(open.Page().GetDlgItem(id)->isVisible()) << id;
    const auto y = [&](int i) { return open.Page().GetDlgItem(page.labels[i])->geometry().top(); };
    EXPECT_EQ(y(2) - y(1), y(1) - y(0));
  }
  OpenDialog open(Model(2, 15), 3);
  EXPECT_EQ(open.Driver().Entries(20042).size(), 3) << "what is not there is not reset";
}

TEST(LegacyPictureCustom, ButtonsGoByPositionAndTheirPopUpsHaveNoResets) {
  OpenDialog open(Model(4, 11), 1);
  const DialogDriver driver = open.Driver();
  EXPECT_FALSE(driver.IsEnabled(20133)) << "nothing is selected";
  for (const int i : {3, 2, 1, 0}) {
    driver.Choose(20142, i);
    EXPECT_EQ(driver.IsEnabled(20133), i <= 2) << i;
  }
  for (const int i : {0, 1, 2, 4, 3}) {
    driver.Choose(20144, i);
    EXPECT_EQ(driver.IsEnabled(20143), i == 3) << i;
  }
  const auto look = [](CDialog& popup) { EXPECT_FALSE(popup.GetDlgItem(20336)->isVisible()); };
  WhenModal("CGammaDlg", look);
  driver.Click(20133);
  WhenModal("CColorDlg", look);
  driver.Click(20143);
}

}  // namespace
