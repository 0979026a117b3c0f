// Behaviour of single pages that the files in listing/ do not show.

#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"
#include "toolkit/StateLabel.h"

namespace {

TEST(LegacySetup, OnlyTheResultOneIsASuccess) {
  MessageBoxes boxes;
  OpenDialog open(MakeModel(3, 4), 1);
  for (const char* key : {"Inc 0x2100", "Set 0x2202"}) open.Projector().AnswerResult(key, 2);
  open.Driver().Click(20087);
  open.Driver().Drag(21060, 18);
  EXPECT_EQ(boxes.Take().size(), 2U);
}

TEST(LegacySetup, ATextNumberOfZeroIsLookedUpLikeAnyOther) {
  CModelInfo2 model = MakeModel(3, 4);
  AddEntry(model.AspectList, -1, "none");
  OpenDialog open(model, 1);
  const QString text = CatalogString(kListCategory, 0);
  EXPECT_FALSE(text.isEmpty());
  EXPECT_EQ(open.Driver().Entries(20099), QStringList{text});
}

TEST(LegacyScreen, OneModelOfASeriesHasAnAdditionalLanguage) {
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

TEST(StatusPage, NamesSourcesInAnySlot) {
  CModelInfo2 model = MakeModel(5, 30);
  AddSource(model.MySourceList, 1, "Video");
  model.MySourceList.firstValues[15] = 77;
  model.MySourceList.names[15] = MakeNameSlot("Beyond the count");
  OpenDialog open(model);
  for (const auto& [value, text] : {std::pair{1, "Video"}, {77, "Beyond the count"}, {5, ""}}) {
    open.Projector().Answer("Get 0x2000", value);
    open.Page().InitDisp();
    EXPECT_EQ(open.Driver().Text(20009), text);
  }
}

TEST(StatusPage, PowerErrorAndLampHaveAMark) {
  using enum StateLabel::Mark;
  OpenDialog open(MakeModel(5, 30));
  const auto label = [&](int control) -> const StateLabel& {
    return open.Driver().Item<StateLabel>(control);
  };
  EXPECT_FALSE(label(20014).Share()) << "the rated hours are not known";
  open.Dialog().SetRatedLampHours(2000);
  const std::tuple<const char*, int, int, StateLabel::Mark> cases[] = {
      {"Get 0x6000", 0, 20008, Idle},         {"Get 0x6000", 1, 20008, Good},
      {"Get 0x6000", 2, 20008, Attention},    {"Get 0x6020", 0, 20010, Good},
      {"Get 0x1090", 500, 20014, Good},       {"Get 0x1090", 1800, 20014, Attention},
      {"Get 0x1090", 2100, 20014, Attention}, {"Get 0x1090", 500, 20014, Good},
      {"Get 0x6020", 6, 20014, Attention},    {"Get 0x1090", 1900, 20014, Attention},
      {"Get 0x6020", 3, 20010, Bad},          {"Get 0x6020", 3, 20014, Bad}};
  for (const auto& [key, value, control, mark] : cases) {
    open.Projector().Answer(key, value);
    open.Page().InitDisp();
    EXPECT_EQ(label(control).ShownMark(), mark) << key << ' ' << value;
  }
  EXPECT_EQ(label(20014).Share(), 0.95);
  open.Dialog().SetWanted(WantedSettings());
  EXPECT_EQ(label(20014).toolTip(), QStringLiteral("1900 h / 2000 h")) << "no note takes its place";
  open.Projector().Refuse("Get 0x1090");
  open.Page().InitDisp();
  EXPECT_FALSE(label(20014).Share());
}

TEST(OtherPages, AProjectorThatStaysOnOrIsSilentHasRefusedToTurnOff) {
  constexpr int kQuestion = 4202, kRefusal = 4201;
  for (const auto& [after, lastBox, state, ready] : {std::tuple{1, kRefusal, "On", true},
                                                     {-1, kRefusal, "-", false},
                                                     {0, kQuestion, "Off", true},
                                                     {2, kQuestion, "Cooling Down", false}}) {
    OpenDialog open(MakeModel(5, 34), 7, Answers({{"Get 0x6000", 1}}));
    Answers({{"Get 0x6000", after}})(open.Projector());
    MessageBoxes boxes(true);
    open.Driver().Click(20101);
    EXPECT_EQ(open.Projector().Take().size(), 1U + 8U) << "and the page is read again";
    EXPECT_EQ(boxes.Take().back(), CatalogString(kErrorCategory, lastBox));
    EXPECT_EQ(open.Driver().Text(20102), state);
    for (const int button : {20100, 20101}) EXPECT_EQ(open.Driver().IsEnabled(button), ready);
  }
}

}  // namespace
