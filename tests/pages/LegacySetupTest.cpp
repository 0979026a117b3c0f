// The setup and screen pages of the older page sets.

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
  const struct {
    int dialogType, modelCode, tab, minus, plus;
    std::string code;
    int low, high;
  } rows[] = {// clang-format off
      {3, 4, kSetupTab, 20078, 20080, "0x2003", 96, 160}, {3, 10, kSetupTab, 20103, 20105, "0x2005", 96, 160},
      {3, 4, kSetupTab, 21042, 21068, "0x2006", 96, 160}, {3, 4, kSetupTab, 21056, 21058, "0x2201", 120, 136},
      {3, 47, kSetupTab, 21056, 21058, "0x2201", 122, 134}, {3, 8, kSetupTab, 21059, 21061, "0x2202", 110, 146},
      {3, 10, kSetupTab, 21059, 21061, "0x2202", 65, 191}, {3, 71, kSetupTab, 21062, 21064, "0x2203", 110, 146},
      {3, 48, kSetupTab, 21062, 21064, "0x2203", 114, 142}, {3, 4, kSetupTab, 20092, 20094, "0x2103", 0, 248},
      {4, 11, kSetup4Tab, 21049, 21050, "0x300A", 80, 100}, {4, 11, kSetup4Tab, 20249, 20251, "0x2007", 0, 255}};
  // clang-format on
  for (const auto& row : rows) {
    SCOPED_TRACE(row.code + " of " + std::to_string(row.modelCode));
    CModelInfo2 model = MakeModel(row.dialogType, row.modelCode);
    for (std::size_t i = 0; i < RangeIndex::Count; ++i) model.RangeText(i) = "-10,300";
    OpenDialog open(model, row.tab);
    EXPECT_EQ(Steps(open, row.minus, row.plus, row.code, row.low), Strings{"Inc " + row.code});
    EXPECT_EQ(Steps(open, row.minus, row.plus, row.code, row.high), Strings{"Dec " + row.code});
    EXPECT_EQ(Steps(open, row.minus, row.plus, row.code, row.low + 1).size(), 2U);
    EXPECT_EQ(Steps(open, row.minus, row.plus, row.code, row.high - 1).size(), 2U);
  }
}

// The contrast's range bounds its buttons too; the projector alone bounds volume and brightness.
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
  EXPECT_EQ(Steps(osd, 20233, 20235, "0x3018", 0).size(), 2U);
  EXPECT_EQ(Steps(osd, 20233, 20235, "0x3018", 255).size(), 2U);
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
  EXPECT_EQ(languages(11, "QD-M7450"), 16);
  EXPECT_EQ(languages(12, "QD-M7400"), 16);
  EXPECT_EQ(languages(13, "QD-S7350"), 16);
  EXPECT_EQ(languages(12, "QD-M7450"), 15) << "the name of another series";
  EXPECT_EQ(languages(23, "QD-M7400"), 17);
}

}  // namespace
