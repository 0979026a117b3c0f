#include <QMessageBox>
#include <gtest/gtest.h>

#include "pages/input/COption5TabDlg.h"
#include "pages/input/CServiceDlg.h"
#include "settings/CatalogNumbers.h"
#include "tests/support/NumberedCatalog.h"
#include "tests/support/PageTables.h"

namespace {

using Strings = std::vector<std::string>;

constexpr int kFunctions[] = {0, 1, 3, 4, 22, 25, 26, 27, 32, 33, 34, 35, 36, 48, 49, 255};

CModelInfo2 OptionModel(int code, bool withFunctions = true) {
  CModelInfo2 model = MakeModel(5, code);
  for (const int function : kFunctions) {
    if (withFunctions) AddEntry(model.MyButtonList, function, "function");
  }
  AddSource(model.MySourceList, 0x70000, "Computer1");
  AddSource(model.MySourceList, 0x50003, "HDMI");
  return model;
}

// The option page of a model; it stands one tab later behind an audio page.
struct OptionPage : OpenDialog {
  using Script = std::function<void(RecordingChannel&)>;
  explicit OptionPage(const CModelInfo2& model, const Script& script = {})
      : OpenDialog(model, 0, script) {
    for (int tab = 6; !qobject_cast<COption5TabDlg*>(&Page()); ++tab) SelectTab(tab);
    Projector().Take();
  }
  explicit OptionPage(int code, const Script& script = {})
      : OptionPage(OptionModel(code), script) {}

  COption5TabDlg& Option() { return static_cast<COption5TabDlg&>(Page()); }
};

const ReadRow kRows[] = {
    {20364, "GetAutoSearch"}, {20365, "GetAutoKeystone"},
    {20366, "GetAutoOn"},     {20369, "GetAutoOff"},
    {20371, "GetMyButton1"},  {20372, "GetMyButton2"},
    {20374, "Get 0x3620"},    {20373, ""},
    {20292, "GetCCDisplay"},  {20293, "GetCCMode"},
    {20294, "GetCCChannel"},
};
const RowsOfModels kModels{
    {"30 31 32 33 36 37 38 39 41 43 46 52", "11111101000"},
    {"40 42 45", "11111101111"},
    {"44", "10111101111"},
    {"49 50 51 53 54", "11111111111"},
};

TEST(Option5, EachModelShowsAndReadsItsRowsInOrder) {
  for (int code = 28; code <= 56; ++code) {
    SCOPED_TRACE(code);
    OptionPage open(code);
    open.Page().InitDisp();
    ExpectRows(kRows, DigitsOf(kModels, code), open.Page(), open.Projector().Take());
  }
}

TEST(Option5, SomeModelsNameFunctionsDifferently) {
  const NumberedCatalog catalog;
  // In the order of kFunctions; "." is the function's number + 170.
  const std::map<int, QString> models{
      {30, ". . . . . . . . . . . . . . . ."},
      {37, "1001 . . 1002 . . . . . . . . . . . ."},
      {38, "1003 . . . . . . . . . . . . . . ."},
      {39, "1001 . . 1002 . . . . . . . . . . . ."},
      {40, "1001 . . 1002 . 1007 . . 1008 1009 1010 1011 1012 . . ."},
      {41, ". . 1006 . . 1007 . . 1008 1009 1010 1011 1012 . . ."},
      {42, "1001 . 1006 1002 . . . . 1008 1009 1010 1011 1012 . . ."},
      {43, ". . 1006 . . 1007 . . . . . . . . . ."},
      {44, "1001 . . 1002 . 1007 . . . . . . . 1013 1014 1017"},
      {45, "1001 . . 1002 . . . . . . . . . . . ."},
      {49, "1001 . . 1002 . 1007 . 1015 . . . . . . . 1017"},
      {50, "1001 . . 1002 1018 1007 . 1015 . . . . . . . 1017"},
      {51, ". . 1006 . 1018 1007 1016 1015 . . . . . . . 1017"},
      {52, ". . . . . 1007 . . . . . . . . . ."},
      {53, "1001 . 1006 1002 . 1007 . 1015 . . . . . . . 1017"},
      {54, ". . 1006 . 1018 1007 . 1015 1008 1009 1010 1011 1012 . . 1017"},
  };
  for (const auto& [code, texts] : models) {
    QStringList entries = texts.split(QLatin1Char(' '));
    for (int i = 0; i < entries.size(); ++i) {
      if (entries[i] == ".") entries[i] = QString::number(kFunctions[i] + 170);
    }
    OptionPage open(code);
    EXPECT_EQ(open.Driver().Entries(20371), entries) << code;
    EXPECT_EQ(open.Driver().Entries(20372), entries) << code;
    EXPECT_EQ(open.Option().GetMyBtnIdx(25), 5);
    EXPECT_EQ(open.Option().GetMyBtnVal(15), 255);
    EXPECT_EQ(open.Option().GetMyBtnIdx(24), -1);
  }
}

TEST(Option5, WithoutAListOfTheModelTheTemplatesFunctionsHold) {
  for (const int code : {30, 47}) {  // also a model without rows sends functions, not positions
    OptionPage open(OptionModel(code, false));
    EXPECT_EQ(open.Driver().Entries(20371).size(), 12);
    ExpectSent({code, 20371, 1, "SetMyButton1 4"}, open);
    ExpectSent({code, 20372, 11, "SetMyButton2 20"}, open);
    EXPECT_EQ(open.Option().GetMyBtnIdx(24), 15);
    EXPECT_EQ(open.Option().GetMyBtnVal(16), -1);
    EXPECT_EQ(open.Option().GetMyBtnIdx(-1), -1);
  }
}

TEST(Option5, EachChoiceSendsItsValue) {
  const ListChoice choices[] = {
      {49, 20364, 1, "SetAutoSearch 1"},  {49, 20365, 1, "SetAutoKeystone 1"},
      {49, 20366, 1, "SetAutoPowerOn 1"}, {49, 20371, 3, "SetMyButton1 4"},
      {49, 20372, 5, "SetMyButton2 25"},  {49, 20374, 1, "Set 0x3620 3"},
      {49, 20292, 2, "SetCCDisplay 2"},   {49, 20293, 1, "SetCCMode 1"},
      {49, 20294, 0, "SetCCChannel 1"},   {40, 20371, 15, "SetMyButton1 255"},
  };
  for (const ListChoice& choice : choices) {
    OptionPage open(choice.modelCode);
    ExpectSent(choice, open);
  }
}

TEST(Option5, ARefusedSwitchShowsTheProjectorsState) {
  struct Case {
    int list;
    std::string set, get;
  };
  for (const auto& [list, set, get] : {Case{20364, "SetAutoSearch", "GetAutoSearch"},
                                       Case{20365, "SetAutoKeystone", "GetAutoKeystone"},
                                       Case{20366, "SetAutoPowerOn", "GetAutoOn"}}) {
    OptionPage open(30);
    open.Projector().Refuse(set);
    open.Driver().Choose(list, 1);
    EXPECT_EQ(open.Projector().Take(), (Strings{set + " 1", get}));
    EXPECT_EQ(open.Driver().Selected(list), 0);
  }
}

TEST(Option5, AutoOffStepsAndSlides) {
  CModelInfo2 model = OptionModel(30);
  model.RangeText(RangeIndex::AutoOff) = "10,60";
  OptionPage open(model, [](RecordingChannel& projector) { projector.Answer("GetAutoOff", 20); });
  const DialogDriver driver = open.Driver();
  RecordingChannel& projector = open.Projector();
  EXPECT_EQ(driver.Item<QSlider>(20369).minimum(), 10);
  EXPECT_EQ(driver.Item<QSlider>(20369).maximum(), 60);
  EXPECT_EQ(OptionPage(30).Driver().Item<QSlider>(20369).maximum(), 99);
  const auto expectShown = [&](int value) {
    EXPECT_EQ(driver.Text(20370), QString::number(value));
    EXPECT_EQ(driver.SliderAt(20369), value);
  };
  expectShown(20);
  projector.Answer("IncrementAutoPowerOff", 21);
  driver.Click(20368);
  EXPECT_EQ(projector.Take(), (Strings{"GetAutoOff", "IncrementAutoPowerOff"}));
  expectShown(21);
  projector.Refuse("DecrementAutoPowerOff");
  driver.Click(20367);
  EXPECT_EQ(projector.Take(), (Strings{"GetAutoOff", "DecrementAutoPowerOff"}));
  expectShown(21);
  driver.Drag(20369, 50);
  EXPECT_EQ(projector.Take(), Strings{"SetAutoPowerOff 50"}) << "only at the end of the drag";
  expectShown(50);
  projector.Refuse("SetAutoPowerOff");
  driver.Drag(20369, 55);
  expectShown(50);

  projector.Take();
  projector.Refuse("GetAutoOff");
  driver.Click(20368);
  EXPECT_EQ(projector.TakeChanges(), Strings{}) << "no step from a value that nobody knows";
  open.Page().InitDisp();
  for (const int control : {20367, 20368, 20369}) EXPECT_FALSE(driver.IsEnabled(control));
  EXPECT_EQ(driver.Text(20370), "");
}

TEST(Option5, AnUnknownFunctionShowsTheLastEntryOnlyOnSomeModels) {
  for (int code = 30; code <= 54; ++code) {
    if (DigitsOf(kModels, code).empty()) continue;
    OptionPage open(code, [](RecordingChannel& projector) {
      projector.Answer("GetMyButton1", 25);
      projector.Answer("GetMyButton2", 99);
    });
    EXPECT_EQ(open.Driver().Selected(20371), 5);
    const bool last = code == 44 || (code >= 49 && code != 52);
    EXPECT_EQ(open.Driver().Selected(20372), last ? 15 : -1) << code;
  }
}

TEST(Option5, TheOtherFunctionCannotBeAssigned) {
  OptionPage open(50, [](RecordingChannel& projector) { projector.Answer("GetMyButton1", 26); });
  open.Driver().Choose(20371, 15);
  EXPECT_EQ(open.Projector().Take(), Strings{"GetMyButton1"});
  EXPECT_EQ(open.Driver().Selected(20371), 6);
}

TEST(Option5, ARefusedFunctionIsReadBackAsAPosition) {
  OptionPage open(30, [](RecordingChannel& projector) { projector.Refuse("SetMyButton2"); });
  open.Projector().Answer("GetMyButton2", 3);
  open.Driver().Choose(20372, 5);
  EXPECT_EQ(open.Projector().Take(), (Strings{"SetMyButton2 25", "GetMyButton2"}));
  EXPECT_EQ(open.Driver().Selected(20372), 3) << "position 3, not the entry of function 3";
}

TEST(Option5, MySourceGoesByTheLowHalfOfItsWord) {
  OptionPage open(49, [](RecordingChannel& projector) { projector.Answer("Get 0x3620", 3); });
  const DialogDriver driver = open.Driver();
  EXPECT_EQ(driver.Text(20374), "HDMI");
  open.Projector().Answer("Get 0x3620", 4);
  open.Page().InitDisp();
  EXPECT_EQ(driver.Selected(20374), -1);

  MessageBoxes boxes;
  open.Projector().Refuse("Set 0x3620");
  driver.Choose(20374, 0);
  const auto seen = boxes.Take();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].text, CatalogString(kErrorCategory, 335));
  EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
  EXPECT_EQ(driver.Selected(20374), 0) << "the list keeps the choice";
}

TEST(Option5, TheLastChannelIsShown) {
  OptionPage open(40, [](RecordingChannel& projector) { projector.Answer("GetCCChannel", 4); });
  EXPECT_EQ(open.Driver().Text(20294), "4");
}

TEST(Option5, ServiceOpensForTheModelOnTheSameProjector) {
  OptionPage open(44);
  bool seen = false;
  WhenModal("CServiceDlg", [&](CDialog& dialog) {
    seen = true;
    const auto& service = static_cast<CServiceDlg&>(dialog);
    EXPECT_EQ(service.ModelCode, 44);
    EXPECT_EQ(service.projector, &open.Dialog().Projector());
    EXPECT_EQ(service.parentWidget(), &open.Page());
  });
  open.Driver().Click(20373);
  EXPECT_TRUE(seen);
}

}  // namespace
