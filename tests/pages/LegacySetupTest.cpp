// The setup and screen pages of the older page sets.

#include <tuple>

#include <gtest/gtest.h>

#include "tests/support/NumberedCatalog.h"
#include "tests/support/RowCases.h"

namespace {

using Strings = std::vector<std::string>;

constexpr int kSetupTab = 1;   // set 3
constexpr int kSetup4Tab = 4;  // set 4, one later with a video page
constexpr int kScreenTab = 6;  // sets 1 and 5, one earlier in set 4

CModelInfo2 Model(int dialogType, int code, const char* name = "Model") {
  CModelInfo2 model = MakeModel(dialogType, code);
  model.ModelName = name;
  for (const int aspect : {0, 8, 1}) AddEntry(model.AspectList, aspect, "aspect");
  for (const char* whisper : {"Normal", "Whisper"}) AddEntry(model.WhisperList, 0, whisper);
  for (const char* source : {"RGB1", "Video", "HDMI"}) AddSource(model.MySourceList, 7, source);
  return model;
}

// A slider row, dragged to the end of its slider: the cases of a refused step and a refused drag.
void Add(std::vector<RowCase>& rows, int minus, int slider, int plus, const std::string& code,
         int bias, int end, int error, int value = 2) {
  const std::string get = "Get " + code, set = "Set " + code;
  const Use up{plus, 0, {"Inc " + code, get}}, down{minus, 0, {"Dec " + code, get}};
  const Use drag{slider, end, {set + ' ' + std::to_string(end + bias)}};
  const std::string shown = std::to_string(value);
  rows.push_back({slider, get, value + bias, shown, {up, down}, "Inc " + code, error});
  rows.push_back({slider, get, value + bias, shown, {drag}, set, error});
}

RowCase Field(int field, int plus, int minus, const std::string& code, int error) {
  const std::string get = "Get " + code;
  const Use up{plus, 0, {"Inc " + code, get}}, down{minus, 0, {"Dec " + code, get}};
  return {field, get, 300, "300", {up, down}, "Inc " + code, error};
}

// A list that sends the position chosen; refused, it goes back, or tells and stays on the entry.
RowCase List(int control, const std::string& read, int value, const char* shown,
             const std::string& set, int position, bool hasResult = false, int error = 0,
             const char* after = "") {
  const Use use{control, position, {set + ' ' + std::to_string(position)}};
  return {control, read, value, shown, {use}, hasResult ? set : "", error, after};
}

TEST(LegacySetup, EachRowOfSet3ReadsSendsAndTellsRefusals) {
  std::vector<RowCase> rows{Field(20090, 20087, 20089, "0x2100", 54),
                            // Left increases, right decreases.
                            Field(20091, 20086, 20088, "0x2101", 54),
                            Field(20097, 20098, 20096, "0x2102", 56),
                            List(20099, "Get 0x2008", 8, "Native", "SetAspect", 2)};
  Add(rows, 20078, 20079, 20080, "0x2003", 128, -32, 58);
  Add(rows, 20082, 20083, 20084, "0x2004", 128, 32, 59);
  Add(rows, 20092, 20093, 20094, "0x2103", 0, 248, 55);
  Add(rows, 21056, 21057, 21058, "0x2201", 128, -8, 17);
  Add(rows, 21059, 21060, 21061, "0x2202", 128, 18, 60);
  Add(rows, 21062, 21063, 21064, "0x2203", 128, -18, 15);
  Add(rows, 20103, 20104, 20105, "0x2005", 128, 32, 73);
  Add(rows, 21042, 21043, 21068, "0x2006", 128, -32, 72);
  ExpectRowCases(Model(3, 4), kSetupTab, rows);
}

// What a − and a + at a device value send.
Strings Steps(OpenDialog& open, int minus, int plus, const std::string& code, int value) {
  open.Projector().Answer("Get " + code, value);
  open.Page().InitDisp();
  open.Projector().Take();
  open.Driver().Click(minus);
  open.Driver().Click(plus);
  return open.Projector().TakeChanges();
}

TEST(LegacySetup, ButtonsStopAtTheModelsBounds) {
  using Case = std::tuple<int, int, int, std::string, int, int>;
  for (const auto& [model, minus, plus, code, low, high] :
       {Case{4, 21056, 21058, "0x2201", 120, 136}, Case{47, 21056, 21058, "0x2201", 122, 134},
        Case{8, 21059, 21061, "0x2202", 110, 146}, Case{10, 21059, 21061, "0x2202", 65, 191},
        Case{71, 21062, 21064, "0x2203", 110, 146}, Case{48, 21062, 21064, "0x2203", 114, 142},
        Case{8, 20082, 20084, "0x2004", 80, 176}, Case{10, 20082, 20084, "0x2004", 96, 160},
        Case{4, 20092, 20094, "0x2103", 0, 248}, Case{11, 21049, 21050, "0x300A", 80, 100},
        Case{11, 20249, 20251, "0x2007", 0, 255}}) {
    SCOPED_TRACE(code + " of " + std::to_string(model));
    const bool set4 = model == 11;
    OpenDialog open(Model(set4 ? 4 : 3, model), set4 ? kSetup4Tab : kSetupTab);
    EXPECT_EQ(Steps(open, minus, plus, code, low), Strings{"Inc " + code});
    EXPECT_EQ(Steps(open, minus, plus, code, high), Strings{"Dec " + code});
    EXPECT_EQ(Steps(open, minus, plus, code, low + 1).size(), 2U);
  }
}

TEST(LegacySetup, TheVolumeIsOnlyBoundBelow) {
  for (const int code : {9, 22, 11}) {
    OpenDialog open(Model(4, code), kSetup4Tab + (code == 11 ? 0 : 1));
    EXPECT_EQ(open.Driver().Item<QSlider>(20245).maximum(), code == 11 ? 32 : 48);
    EXPECT_EQ(Steps(open, 20244, 20246, "0x2001", 99).size(), 2U);
    EXPECT_EQ(Steps(open, 20244, 20246, "0x2001", 0), Strings{"Inc 0x2001"});
  }
}

// The contrast's range bounds its buttons too, the brightness's only its slider.
TEST(LegacySetup, OnlyTheContrastKeepsTheBoundsOfTheModelsRange) {
  CModelInfo2 model = Model(3, 4);
  model.RangeText(RangeIndex::Brightness) = model.RangeText(RangeIndex::Contrast) = "100,156";
  OpenDialog open(model, kSetupTab);
  EXPECT_EQ(open.Driver().Item<QSlider>(20079).maximum(), 28);
  EXPECT_EQ(Steps(open, 20082, 20084, "0x2004", 156), Strings{"Dec 0x2004"});
  EXPECT_EQ(Steps(open, 20078, 20080, "0x2003", 156).size(), 2U);
}

TEST(LegacySetup, OnlyTheResultOneIsASuccess) {
  MessageBoxes boxes;
  OpenDialog open(Model(3, 4), kSetupTab);
  for (const char* key : {"Inc 0x2100", "Set 0x2202"}) open.Projector().AnswerResult(key, 2);
  open.Driver().Click(20087);
  open.Driver().Drag(21060, 18);
  EXPECT_EQ(boxes.Take().size(), 2U);
}

TEST(LegacySetup, ListsAskForTheirTexts) {
  const NumberedCatalog catalog;
  const QStringList resets{"105", "106", "299", "300", "301", "292", "290", "291", "296", "298"};
  for (const int code : {4, 71, 8, 10, 47, 48}) {
    OpenDialog open(Model(3, code), kSetupTab);
    EXPECT_EQ(open.Driver().Entries(20099), code == 4 || code == 71
                                                ? (QStringList{"1", "9", "2"})
                                                : (QStringList{"350", "358", "351"}));
    EXPECT_EQ(open.Driver().Entries(21069), resets);
  }
  OpenDialog open(Model(4, 11), kSetup4Tab);
  EXPECT_EQ(open.Driver().Entries(20242), (QStringList{"25", "26"}));
}

// Runs each entry of a list of resets: no question, and a refresh only when it was done.
void ExpectResets(OpenDialog& open, int list, int execute, const Strings& resets) {
  MessageBoxes boxes;
  ASSERT_EQ(open.Driver().Entries(list).size(), static_cast<int>(resets.size()));
  EXPECT_EQ(open.Driver().Selected(list), 0);
  for (std::size_t i = 0; i < resets.size(); ++i) {
    open.Driver().Choose(list, static_cast<int>(i));
    open.Projector().Take();
    open.Driver().Click(execute);
    const Strings done = open.Projector().Take();
    EXPECT_EQ(done.at(0), resets[i]);
    EXPECT_GT(done.size(), 2U) << "the page is read again";
    open.Projector().Refuse(resets[i]);
    open.Driver().Click(execute);
    EXPECT_EQ(open.Projector().Take(), Strings{resets[i]});
  }
  EXPECT_TRUE(boxes.Take().empty());
}

TEST(LegacySetup, ResetsRunWithoutAQuestion) {
  OpenDialog setup(Model(3, 4), kSetupTab);
  ExpectResets(setup, 21069, 21073,
               {"ExecBrightnessReset", "ExecContrastReset", "ExecVPosReset", "ExecHPosReset",
                "ExecHSizeReset", "ExecSharpnessReset", "ExecColorReset", "ExecTintReset",
                "ExecColorBalRReset", "ExecColorBalBReset"});
  OpenDialog setup4(Model(4, 11), kSetup4Tab);
  ExpectResets(setup4, 20254, 20255, {"ExecElectricZoomReset", "ExecKeyStoneReset"});
  const Strings menu{"ExecMenuPositionVReset", "ExecMenuPositionHReset"};
  OpenDialog screen(Model(1, 1), kScreenTab), screen4(Model(5, 30), kScreenTab);
  ExpectResets(screen, 21094, 21093, menu);
  ExpectResets(screen4, 20240, 20241, menu);
}

TEST(LegacySetup, EachRowOfSet4ReadsSendsAndTellsRefusals) {
  std::vector<RowCase> rows{
      List(20242, "Get 0x3300", 1, "Whisper", "SetWhisper", 0, true),
      List(20243, "GetMirror", 1, "H Inverse", "SetMirror", 3, true),
      List(21034, "Get 0x2410", 1, "On", "SetStereo", 0),
      List(21043, "Get 0x2030", 1, "Audio1", "SetAudioRGB1", 0, true),
      List(21044, "Get 0x2031", 1, "Audio1", "SetAudioRGB2", 0, true),
      List(21051, "Get 0x2032", 1, "Audio1", "SetAudioVideo", 2, true),
      List(21052, "Get 0x2033", 1, "Audio1", "SetAudioSVideo", 3, true),
      List(21053, "Get 0x2034", 1, "Audio1", "SetAudioComponent", 0, true),
      {20247, "Get 0x2600", 1, "on", {{20247, 0, {"SetIRFront 0"}}}, "SetIRFront"},
      {20248, "Get 0x2602", 0, "off", {{20248, 0, {"SetIRTop 1"}}}, "SetIRTop"},
  };
  Add(rows, 21049, 21048, 21050, "0x300A", 0, 80, 79, 90);
  Add(rows, 20249, 20250, 20251, "0x2007", 128, 127, 64);
  Add(rows, 20244, 20245, 20246, "0x2001", 0, 32, 65);
  ExpectRowCases(Model(4, 11), kSetup4Tab, rows);
}

TEST(LegacyScreen, EachRowReadsAndSends) {
  ExpectRowCases(Model(1, 1), kScreenTab,
                 {{21085, "Get 0x3000", 6, "Black", {{21085, 1, {"SetBlankColor 5"}}}},
                  // The third entry is reported as 32, but sent as its position.
                  List(21086, "Get 0x3004", 32, "MyScreen", "SetStartup", 2),
                  List(21087, "Get 0x3012", 1, "Full", "SetMyScreenSize", 0),
                  List(21088, "Get 0x30C0", 1, "On", "SetMyScreenLock", 0),
                  Field(20021, 21089, 21091, "0x3016", 62),
                  Field(20022, 21057, 21090, "0x3015", 62),  // left decreases
                  List(21092, "Get 0x3017", 1, "On", "SetMessage", 0)});
}

TEST(LegacyScreen, EachRowOfSets4And5ReadsAndSends) {
  std::vector<RowCase> rows{
      List(20226, "Get 0x3003", 2, "Deutsch", "SetLanguage", 0),
      Field(20231, 20227, 20230, "0x3016", 62),
      Field(20232, 20229, 20228, "0x3015", 62),
      {20237, "Get 0x3000", 64, "Original", {{20237, 3, {"SetBlankColor 32"}}}},
      List(21086, "Get 0x3004", 1, "Off", "SetStartup", 2),
      List(20238, "Get 0x30C0", 0, "Off", "SetMyScreenLock", 1),
      List(20239, "Get 0x3017", 0, "Off", "SetMessage", 1),
      List(20242, "Get 0x3022", 1, "Dot-Line 1", "Set 0x3022", 8, true, 336, "Map 2"),
      List(20243, "Get 0x2310", 1, "On", "Set 0x2310", 0, true, 337, "Off"),
      List(20244, "Get 0x2311", 1, "Middle", "Set 0x2311", 3, true, 338, "Full"),
      List(20245, "Get 0x2312", 1, "Video", "Set 0x2312", 2, true, 339, "HDMI"),
      List(20246, "Get 0x2313", 1, "Right", "Set 0x2313", 0, true, 340, "Left"),
      List(20247, "Get 0x2314", 1, "Right", "Set 0x2314", 0, true, 341, "Left"),
      List(20248, "Get 0x2315", 1, "Video", "Set 0x2315", 0, true, 342, "RGB1"),
  };
  Add(rows, 20233, 20234, 20235, "0x3018", 0, 255, 63);
  ExpectRowCases(Model(5, 30), kScreenTab, rows);
  OpenDialog open(Model(5, 30), kScreenTab);
  EXPECT_EQ(Steps(open, 20233, 20235, "0x3018", 0).size(), 2U) << "nothing bounds it";
  EXPECT_EQ(Steps(open, 20233, 20235, "0x3018", 255).size(), 2U);
}

TEST(LegacyScreen, BlankAndStartupValuesWithoutAnEntryLeaveTheSelection) {
  OpenDialog open(Model(1, 1), kScreenTab);
  const auto shown = [&](const char* key, int value, int list) {
    open.Projector().Answer(key, value);
    open.Page().InitDisp();
    return open.Driver().Selected(list);
  };
  int position = 0;
  for (const int value : {3, 5, 6, 32, 64}) {
    EXPECT_EQ(shown("Get 0x3000", value, 21085), position++);
  }
  EXPECT_EQ(shown("Get 0x3000", 4, 21085), 4);
  EXPECT_EQ(shown("Get 0x3004", 32, 21086), 2);
  EXPECT_EQ(shown("Get 0x3004", 2, 21086), 2);
  EXPECT_EQ(shown("Get 0x3012", 2, 21087), -1) << "other lists have no such position";
}

TEST(LegacyScreen, AFailedReadTakesOneAxisOfTheMenuOutOfUse) {
  OpenDialog open(Model(1, 1), kScreenTab);
  for (const bool refused : {true, false}) {
    refused ? open.Projector().Refuse("Get 0x3015") : open.Projector().Accept("Get 0x3015");
    open.Page().InitDisp();
    for (const int id : {21090, 21057, 20022}) EXPECT_EQ(open.Driver().IsEnabled(id), !refused);
    EXPECT_TRUE(open.Driver().IsEnabled(20021));
  }
}

TEST(LegacyScreen, TheNamedModelOfASeriesHasALanguageMore) {
  const NumberedCatalog catalog;
  const auto last = [](int code, const char* name) {
    OpenDialog open(Model(4, code, name), kScreenTab - 1);
    return open.Driver().Entries(20226).last().toInt();
  };
  EXPECT_EQ(last(11, "QD-M7450"), 125);
  EXPECT_EQ(last(12, "QD-M7400"), 125);
  EXPECT_EQ(last(13, "QD-S7350"), 125);
  EXPECT_EQ(last(12, "QD-M7450"), 124) << "the name of another series";
  EXPECT_EQ(last(23, "QD-M7400"), 126);
}

}  // namespace
