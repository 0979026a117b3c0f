#include <gtest/gtest.h>

#include "pages/option/COption5TabDlg.h"
#include "pages/option/CServiceDlg.h"
#include "tests/support/DialogDriver.h"

namespace {

const std::vector<int> kFunctions{1, 22, 25, 26, 27, 32, 33, 34, 35, 36, 48, 49, 255};

CModelInfo2 OptionModel(int code, const std::vector<int>& functions = kFunctions) {
  CModelInfo2 model = MakeModel(5, code);
  for (const int function : functions) AddEntry(model.MyButtonList, function, "function");
  AddSource(model.MySourceList, 0x70000, "Computer1");
  AddSource(model.MySourceList, 0x50003, "HDMI");
  return model;
}

// The option page of a model. An audio page before it moves it one tab to the right.
struct OptionPage : OpenDialog {
  explicit OptionPage(const CModelInfo2& model) : OpenDialog(model) {
    for (int tab = 6; !qobject_cast<COption5TabDlg*>(&Page()); ++tab) SelectTab(tab);
    Projector().Take();
  }
  explicit OptionPage(int code) : OptionPage(OptionModel(code)) {}

  COption5TabDlg& Option() { return static_cast<COption5TabDlg&>(Page()); }
};

TEST(OptionType5, WithoutAListOfTheModelTheTemplatesFunctionsAreUsed) {
  for (const int code : {30, 47}) {  // even a model without rows sends functions, not positions
    OptionPage open(OptionModel(code, {}));
    EXPECT_EQ(open.Driver().Entries(20371).size(), 12);
    open.Driver().Choose(20371, 1);
    open.Driver().Choose(20372, 11);
    EXPECT_EQ(open.Projector().Take(), (Strings{"SetMyButton1 4", "SetMyButton2 20"}));
    EXPECT_EQ(open.Option().GetMyBtnIdx(24), 15);
    for (const int outside : {-1, 16}) EXPECT_EQ(open.Option().GetMyBtnVal(outside), -1);
    EXPECT_EQ(open.Option().GetMyBtnIdx(-1), -1);
  }
  OptionPage listed(44);
  EXPECT_EQ(listed.Option().GetMyBtnIdx(25), 2);
  EXPECT_EQ(listed.Option().GetMyBtnIdx(24), -1);
  for (const int i : {0, 12})
    EXPECT_EQ(listed.Option().GetMyBtnVal(i), kFunctions[static_cast<std::size_t>(i)]);
}

// A source's code is the low half of its word. For this read, any result but 0 is a success.
TEST(OptionType5, MySourceAcceptsAnyResultOfAReadAndTakesOtherSources) {
  OptionPage open(49);
  const DialogDriver driver = open.Driver();
  open.Projector().AnswerResult("Get 0x3620", 2);
  for (const auto& [value, position] : {std::pair{3, 1}, {4, -1}}) {
    open.Projector().Answer("Get 0x3620", value);
    open.Page().InitDisp();
    EXPECT_EQ(driver.Selected(20374), position);
  }
  open.Projector().Answer("Get 0x3620", 3);
  SourceList sources;
  AddSource(sources, 0x50003, "Camera");
  open.Dialog().ReplaceSources(sources);
  EXPECT_EQ(driver.Entries(20374), QStringList{"Camera"});
  EXPECT_EQ(driver.Selected(20374), 0) << "it is read again";
}

TEST(OptionType5, ServiceOpensForTheModelOnTheSameProjector) {
  OptionPage open(44);
  WhenModal("CServiceDlg", [&](CDialog& dialog) {
    const auto& service = static_cast<CServiceDlg&>(dialog);
    EXPECT_EQ(service.ModelCode, 44);
    EXPECT_EQ(service.projector, &open.Dialog().Projector());
    EXPECT_EQ(service.parentWidget(), &open.Page());
  });
  open.Driver().Click(20373);
}

}  // namespace
