// The setup and screen pages of the older page sets.

#include <tuple>

#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

constexpr int kSetupTab = 1;   // set 3
constexpr int kSetup4Tab = 4;  // set 4, one later with a video page

// What a − and a + at a device value send.
Strings Steps(OpenDialog& open, int minus, int plus, const std::string& code, int value) {
  open.Projector().Answer("Get " + code, value);
  open.Page().InitDisp();
  open.Driver().Click(minus);
  open.Driver().Click(plus);
  return open.Projector().TakeChanges();
}

TEST(LegacySetup, ButtonsStopAtThePagesBoundsWhateverRangeTheModelGives) {
  using Case = std::tuple<int, int, int, std::string, int, int>;
  for (const auto& [code, minus, plus, setting, low, high] :
       {Case{4, 20078, 20080, "0x2003", 96, 160}, Case{10, 20103, 20105, "0x2005", 96, 160},
        Case{4, 21042, 21068, "0x2006", 96, 160}, Case{4, 21056, 21058, "0x2201", 120, 136},
        Case{47, 21056, 21058, "0x2201", 122, 134}, Case{8, 21059, 21061, "0x2202", 110, 146},
        Case{10, 21059, 21061, "0x2202", 65, 191}, Case{71, 21062, 21064, "0x2203", 110, 146},
        Case{48, 21062, 21064, "0x2203", 114, 142}, Case{4, 20092, 20094, "0x2103", 0, 248},
        Case{11, 21049, 21050, "0x300A", 80, 100}, Case{11, 20249, 20251, "0x2007", 0, 255}}) {
    SCOPED_TRACE(setting + " of " + std::to_string(code));
    CModelInfo2 model = MakeModel(code == 11 ? 4 : 3, code);
    for (std::size_t i = 0; i < RangeIndex::Count; ++i) model.RangeText(i) = "-10,300";
    OpenDialog open(model, code == 11 ? kSetup4Tab : kSetupTab);
    EXPECT_EQ(Steps(open, minus, plus, setting, low), Strings{"Inc " + setting});
    EXPECT_EQ(Steps(open, minus, plus, setting, high), Strings{"Dec " + setting});
    EXPECT_EQ(Steps(open, minus, plus, setting, low + 1).size(), 2U);
    EXPECT_EQ(Steps(open, minus, plus, setting, high - 1).size(), 2U);
  }
}

// The contrast's are those of its slider; the volume has only the lower one, the menu's brightness
// none.
TEST(LegacySetup, SomeButtonsHaveOtherBounds) {
  CModelInfo2 model = MakeModel(3, 8);
  OpenDialog standard(model, kSetupTab);
  EXPECT_EQ(Steps(standard, 20082, 20084, "0x2004", 80), Strings{"Inc 0x2004"});
  model.RangeText(RangeIndex::Contrast) = "100,156";
  OpenDialog contrast(model, kSetupTab);
  EXPECT_EQ(Steps(contrast, 20082, 20084, "0x2004", 156), Strings{"Dec 0x2004"});
  OpenDialog volume(MakeModel(4, 9), kSetup4Tab + 1);
  EXPECT_EQ(Steps(volume, 20244, 20246, "0x2001", 0), Strings{"Inc 0x2001"});
  EXPECT_EQ(Steps(volume, 20244, 20246, "0x2001", 99).size(), 2U);
  OpenDialog osd(MakeModel(5, 30), 6);
  for (const int end : {0, 255}) EXPECT_EQ(Steps(osd, 20233, 20235, "0x3018", end).size(), 2U);
}

TEST(LegacySetup, OnlyTheResultOneIsASuccess) {
  MessageBoxes boxes;
  OpenDialog open(MakeModel(3, 4), kSetupTab);
  for (const char* key : {"Inc 0x2100", "Set 0x2202"}) open.Projector().AnswerResult(key, 2);
  open.Driver().Click(20087);
  open.Driver().Drag(21060, 18);
  EXPECT_EQ(boxes.Take().size(), 2U);
}

TEST(LegacyScreen, TheNamedModelOfASeriesHasALanguageMore) {
  const auto languages = [](int code, const char* name) {
    CModelInfo2 model = MakeModel(4, code);
    model.ModelName = name;
    OpenDialog open(model, 5);
    return open.Driver().Entries(20226).size();
  };
  for (const auto& [code, name] : {std::pair{11, "QD-M7450"}, {12, "QD-M7400"}, {13, "QD-S7350"}}) {
    EXPECT_EQ(languages(code, name), 16);
    EXPECT_EQ(languages(code, "QD"), 15);
  }
  EXPECT_EQ(languages(12, "QD-M7450"), 15) << "the name of another series";
  EXPECT_EQ(languages(23, "QD-M7400"), 17);
}

}  // namespace
