// The setup and screen pages of the older page sets.

#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"

namespace {

TEST(LegacySetup, OnlyTheResultOneIsASuccess) {
  MessageBoxes boxes;
  OpenDialog open(MakeModel(3, 4), 1);
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
