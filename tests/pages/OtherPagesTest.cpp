// The main, automatic, option and other pages.

#include <gtest/gtest.h>

#include "settings/CatalogNumbers.h"
#include "tests/support/RowCases.h"

namespace {

using Strings = std::vector<std::string>;

CModelInfo2 Model(int dialogType, int modelCode) {
  CModelInfo2 model = MakeModel(dialogType, modelCode);
  for (const int aspect : {0, 8, 1}) AddEntry(model.AspectList, aspect, "aspect");
  for (const int gamma : {32, 16}) AddEntry(model.GammaList, gamma, "gamma");
  AddEntry(model.WhisperList, 0, "Normal");
  AddEntry(model.WhisperList, 1, "Whisper");
  AddSource(model.MySourceList, 3, "RGB1");
  AddSource(model.MySourceList, 4, "RGB2");
  return model;
}

// A list whose setter has no result: whatever it sent, it shows what it reads.
RowCase Silent(int list, const std::string& code, int value, const char* shown, int position,
               const std::string& set) {
  const std::string read = "Get " + code;
  return {
      list, read, value, shown, {{list, position, {set + " " + std::to_string(position), read}}},
      set};
}

// A list that reads back only when it is refused.
RowCase Checked(int list, const std::string& read, int value, const char* shown, int position,
                const std::string& set) {
  return {list, read, value, shown, {{list, position, {set + " " + std::to_string(position)}}},
          set};
}

// A slider with + beside it, stepped and dragged to 10.
RowCase Slider(int slider, const std::string& code, int value, const char* shown, int bias,
               int error) {
  const std::string read = "Get " + code, set = "Set " + code;
  return {slider,
          read,
          value,
          shown,
          {{slider + 1, 0, {"Inc " + code, read}},
           {slider, 10, {set + " " + std::to_string(10 + bias)}}},
          "Inc " + code,
          error};
}

// A refused drag is told as well.
RowCase Dragged(RowCase slider) {
  std::swap(slider.uses[0], slider.uses[1]);
  slider.refuse.replace(0, 3, "Set");
  return slider;
}

// clang-format off
const RowCase kBrightness = Slider(20101, "0x2003", 131, "3", 128, 58);
const RowCase kContrast = Slider(20105, "0x2004", 126, "-2", 128, 59);
const RowCase kAspect = Silent(20108, "0x2008", 8, "Native", 2, "SetAspect");
const RowCase kMirror = Checked(20110, "GetMirror", 3, "H&V Inverse", 1, "SetMirror");
const RowCase kAutoAdjust{20120, "", 0, "", {{20120, 0, {"ExecAutoAdjust"}}}, "ExecAutoAdjust", ErrorText::AutoAdjustRefused};
const RowCase kAutoSearch = Checked(20121, "Get 0x2016", 1, "On", 0, "SetAutoSearch");
const RowCase kAutoOn = Checked(20126, "Get 0x3120", 0, "Off", 1, "SetAutoPowerOn");
const RowCase kAutoOff{20123, "Get 0x3110", 20, "20", {{20124, 0, {"Get 0x3110", "IncrementAutoPowerOff"}}, {20122, 0, {"Get 0x3110", "DecrementAutoPowerOff"}}, {20123, 30, {"Set 0x3110 30"}}}, "IncrementAutoPowerOff", ErrorText::AutoOffRefused};
const RowCase kVolume = Slider(20131, "0x2001", 12, "12", 0, 65);
const RowCase kWhisper = Checked(20134, "Get 0x3300", 1, "Whisper", 0, "SetWhisper");
const RowCase kStereo = Silent(20135, "0x2410", 1, "On", 0, "SetStereo");
const RowCase kLanguage = Silent(20136, "0x3003", 2, "Deutsch", 16, "SetLanguage");
const RowCase kMenuColor = Silent(20137, "0x3005", 2, "Gray", 3, "SetMenuColor");
const RowCase kOneTouch = Silent(20138, "0x2608", 1, "On", 0, "SetOneTouch");
const RowCase kIpRemoteId = Silent(20139, "0x2570", 0, "All", 4, "SetIPRemoteID");
const RowCase kBlank = Silent(20104, "0x3020", 0, "Off", 1, "SetBlank");
const RowCase kMute = Silent(20105, "0x2002", 1, "On", 0, "SetMute");
const RowCase kFreeze = Silent(20106, "0x3002", 0, "Off", 1, "SetFreeze");

const Strings kMainReads{"Get 0x2003", "Get 0x2004", "Get 0x2008", "Get 0x3300", "GetMirror"};
const Strings kMain2Reads{"Get 0x2003", "Get 0x2004", "Get 0x2008",
                          "Get 0x30A1", "Get 0x2007", "GetMirror"};
const Strings kOtherReads{"Get 0x6000", "Get 0x2000", "Get 0x3020", "Get 0x2002", "Get 0x3002"};
const Strings kOther4Reads{"Get 0x6000", "Get 0x2000", "Get 0x3020", "Get 0x2002", "Get 0x3002",
                           "Get 0x2400", "Get 0x2401", "Get 0x30BA", "Get 0x3500"};

Strings Then(const std::string& command, Strings reads) {
  reads.insert(reads.begin(), command);
  return reads;
}

RowCase InputSource(const Strings& reads) {
  return {20103, "Get 0x2000", 4, "RGB2", {{20103, 0, Then("Set 0x2000 3", reads)}}, "Set 0x2000", ErrorText::InputSourceRefused};
}
RowCase Reset(const Strings& reads) {
  return {20111, "", 0, "", {{20112, 0, Then("ExecBrightnessReset", reads)}}};
}

struct PageCase {
  const char* page;
  int dialogType, modelCode, tab;
  std::vector<RowCase> rows;
};

const PageCase kPages[] = {
    {"main", 1, 1, 1, {
      kBrightness, Dragged(kBrightness), kContrast, kAspect, kMirror, Reset(kMainReads),
      Checked(20109, "Get 0x3300", 1, "Whisper", 0, "SetWhisper")}},
    {"main 2", 2, 6, 1, {
      kBrightness, kContrast, Dragged(kContrast), kAspect, kMirror, Reset(kMain2Reads),
      Slider(20115, "0x2007", 28, "-100", 128, 64),
      {20109, "Get 0x30A1", 32, "#1-Default", {{20109, 1, {"Set 0x30A1 16"}}}, "Set 0x30A1"}}},
    {"auto", 1, 1, 5, {kAutoAdjust, kAutoSearch, kAutoOff, kAutoOn}},
    {"auto 2", 2, 6, 5, {kAutoAdjust, kAutoSearch, kAutoOff}},
    {"option", 1, 1, 7, {kVolume, kStereo, kLanguage, kMenuColor, kOneTouch, kIpRemoteId}},
    {"option 2", 2, 14, 6, {
      kVolume, kWhisper, kStereo, kAutoSearch, kAutoOff, kLanguage, kMenuColor, kOneTouch, kIpRemoteId}},
    {"option 3", 3, 4, 4, {
      kVolume, kWhisper, kAutoSearch, kAutoOff, kLanguage, kMenuColor,
      {20140, "Get 0x2600", 1, "on", {{20140, 0, {"SetIRFront 0"}}}, "SetIRFront"},
      {20141, "Get 0x2601", 0, "off", {{20141, 0, {"SetIRRear 1"}}}, "SetIRRear"}}},
    {"option 4", 4, 11, 6, {
      kAutoSearch, kAutoOn, kAutoOff, kOneTouch, kIpRemoteId,
      Checked(20127, "GetAutoKeystone", 1, "On", 0, "SetAutoKeystone")}},
    {"other", 1, 1, 8, {InputSource(kOtherReads), kBlank, kMute, kFreeze}},
    {"other 4", 5, 34, 7, {
      InputSource(kOther4Reads), kBlank, kMute, kFreeze,
      Silent(20107, "0x2400", 1, "On", 0, "SetLensLock"),
      Silent(20108, "0x2401", 1, "Short Throw", 2, "SetLensType"),
      Silent(20109, "0x30BA", 2, "16:10", 1, "SetScreenType"),
      Silent(20110, "0x3500", 2, "Bottom", 0, "SetPicturePosition")}},
};
// clang-format on

TEST(OtherPages, EachRowReadsSendsAndTakesARefusal) {
  for (const PageCase& page : kPages) {
    SCOPED_TRACE(page.page);
    ExpectRowCases(Model(page.dialogType, page.modelCode), page.tab, page.rows);
  }
}

TEST(OtherPages, AutomaticFunctionsAreOptionsWhereTheyHaveNoTab) {
  for (const int code : {6, 7, 14}) {
    OpenDialog open(Model(2, code), code == 14 ? 6 : 7);
    for (const int control : {20121, 20123}) {
      EXPECT_EQ(open.Page().GetDlgItem(control)->isVisible(), code == 14) << code;
    }
  }
}

TEST(OtherPages, AListIsOutOfUseWhileWhatASilentSetterDidIsUnknown) {
  OpenDialog open(Model(1, 1), 8);
  open.Projector().Refuse("Get 0x2002");
  open.Driver().Choose(20105, 1);
  EXPECT_FALSE(open.Driver().IsEnabled(20105));
}

constexpr int kOn = 20100, kOff = 20101, kState = 20102;

void ExpectPower(OpenDialog& open, const QString& state, bool ready) {
  EXPECT_EQ(open.Driver().Text(kState), state);
  EXPECT_EQ(open.Driver().IsEnabled(kOn), ready);
  EXPECT_EQ(open.Driver().IsEnabled(kOff), ready);
}

void ExpectBox(MessageBoxes& boxes, int text) {
  const auto seen = boxes.Take();
  ASSERT_FALSE(seen.empty());
  EXPECT_EQ(seen.back().text, CatalogString(kErrorCategory, text));
}

TEST(OtherPages, TurningOnReadsThePageAgainAndTellsARefusal) {
  OpenDialog open(Model(1, 1), 8);
  ExpectPower(open, "Off", true);
  open.Projector().Answer("Get 0x6000", 1);
  MessageBoxes boxes;
  open.Driver().Click(kOn);
  EXPECT_EQ(open.Projector().Take(), Then("SetPowerOn", kOtherReads));
  ExpectPower(open, "On", true);
  EXPECT_TRUE(boxes.Take().empty());
  open.Projector().Refuse("SetPowerOn");
  open.Driver().Click(kOn);
  ExpectBox(boxes, ErrorText::PowerRefused);
}

TEST(OtherPages, TurningOffAsksAndAProjectorThatStaysOnHasRefused) {
  OpenDialog open(Model(5, 34), 7, [](RecordingChannel& p) { p.Answer("Get 0x6000", 1); });
  {
    MessageBoxes no;
    open.Driver().Click(kOff);
    ExpectBox(no, ErrorText::PowerOffQuestion);
    EXPECT_EQ(open.Projector().Take(), Strings{});
  }
  MessageBoxes boxes(true);
  open.Driver().Click(kOff);
  EXPECT_EQ(open.Projector().Take(), Then("SetPowerOff", kOther4Reads));
  ExpectBox(boxes, ErrorText::PowerRefused);
  open.Projector().Answer("Get 0x6000", 0);
  open.Driver().Click(kOff);
  ExpectBox(boxes, ErrorText::PowerOffQuestion);
  ExpectPower(open, "Off", true);
}

TEST(OtherPages, APowerThatCoolsDownOrIsUnknownOffersNothing) {
  OpenDialog open(Model(5, 34), 7, [](RecordingChannel& p) { p.Answer("Get 0x6000", 1); });
  MessageBoxes boxes(true);
  open.Projector().Answer("Get 0x6000", 2);
  open.Driver().Click(kOff);
  ExpectBox(boxes, ErrorText::PowerOffQuestion);
  ExpectPower(open, "Cooling Down", false);
  open.Projector().Refuse("Get 0x6000");
  open.Page().InitDisp();
  ExpectPower(open, "-", false);
  open.Projector().Accept("Get 0x6000");
  open.Projector().Answer("Get 0x6000", 0);
  open.Page().InitDisp();
  ExpectPower(open, "Off", true);
}

}  // namespace
