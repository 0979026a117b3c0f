// The input, setup and audio pages of the newest page set.

#include <QAbstractButton>
#include <QGuiApplication>
#include <QLabel>
#include <gtest/gtest.h>

#include "pages/input/CInputType5Dlg.h"
#include "pages/setup/CAudioType5Dlg.h"
#include "resources/ArrowBitmap.h"
#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

constexpr int kInputTab = 3, kSetupTab = 4, kAudioTab = 5;
constexpr int kCurrentInput = 20337, kResets = 20327, kReset = 20328, kStandby = 20368;
constexpr int kHdmi = 20367, kMiu = 20363, kHdmiAudio = 20364, kSurround = 20381;

/// A page of a model, in front, on a projector with these values; −1 is a refusal.
struct Type5Page : OpenDialog {
  Type5Page(int tab, const CModelInfo2& model, const std::map<std::string, int>& values = {})
      : OpenDialog(model, tab, [&values](RecordingChannel& channel) {
          for (const auto& [key, value] : values) {
            value < 0 ? channel.Refuse(key) : channel.Answer(key, value);
          }
        }) {}
  Type5Page(int tab, int code, const std::map<std::string, int>& values = {})
      : Type5Page(tab, FullModel(5, code), values) {}

  CAudioType5Dlg& Audio() {
    return static_cast<CAudioType5Dlg&>(Dialog().Page(PageId::AudioType5));
  }
  void ExpectValue(int slider, int value, int field, const QString& text) const {
    EXPECT_EQ(driver.SliderAt(slider), value);
    EXPECT_EQ(driver.Text(field), text);
  }

  DialogDriver driver = Driver();
  RecordingChannel& projector = Projector();
  MessageBoxes boxes;
};

// The maximum alone tells how far apart the ticks of keystones and of the setup page's volume are.
TEST(Type5Pages, RangeTextsSetTheSliders) {
  for (const auto& [tab, code, index, text, slider, minimum, maximum, ticks] :
       {std::tuple{kSetupTab, 42, RangeIndex::KeystoneV, "100,156", 20310, -28, 28, 3},
        {kSetupTab, 42, RangeIndex::KeystoneH, "120,160", 20311, -8, 32, 4},
        {kSetupTab, 42, RangeIndex::Volume, "100,180", 20317, 100, 180, 22},
        {kAudioTab, 41, RangeIndex::Volume, "10,40", 20347, 10, 40, 4},
        {kAudioTab, 41, RangeIndex::Treble, "120,134", 20350, -8, 6, 1},
        {kAudioTab, 41, RangeIndex::Bass, "124,130", 20353, -4, 2, 1}}) {
    CModelInfo2 model = MakeModel(5, code);
    model.RangeText(index) = text;
    const Type5Page page(tab, model);
    const auto& control = page.driver.Item<QSlider>(slider);
    EXPECT_EQ(std::tuple(slider, control.minimum(), control.maximum(), control.tickInterval()),
              std::tuple(slider, minimum, maximum, ticks));
  }
}

TEST(Input5, TheCaptionsOfAModelWithoutRowsAreLocalizedAllTheSame) {
  EXPECT_EQ(Type5Page(kInputTab, 47).driver.Text(20500), "Progressive");
}

TEST(Input5, VideoFormatsHavePositions) {
  EXPECT_EQ(CInputType5Dlg::VideoFmtToIdx(7), 6);
  EXPECT_EQ(CInputType5Dlg::VideoFmtToIdx(-1), -1) << "the table's end is none of its values";
}

TEST(Setup5, KeystonesStepFromTheProjectorsValue) {
  for (const auto& [minus, slider, plus, field, axis] :
       {std::tuple{20308, 20310, 20309, 20314, std::string("KeystoneV")},
        {20312, 20311, 20313, 20141, "KeystoneH"}}) {
    SCOPED_TRACE(axis);
    Type5Page page(kSetupTab, 42, {{"Increment" + axis, 131}, {"Decrement" + axis, -1}});
    page.driver.Click(plus);
    page.driver.Click(minus);
    EXPECT_EQ(page.projector.Take(),
              (Strings{"Get" + axis, "Increment" + axis, "Get" + axis, "Decrement" + axis}));
    page.projector.Refuse("Get" + axis);
    page.driver.Click(minus);
    EXPECT_EQ(page.projector.Take(), Strings{"Get" + axis});
    page.ExpectValue(slider, 3, field, "3");
    page.Page().InitDisp();
    page.ExpectValue(slider, 3, field, "");
    for (const int id : {minus, slider, plus, field}) EXPECT_FALSE(page.driver.IsEnabled(id));
    page.projector.Accept("Get" + axis);
    page.Page().InitDisp();
    for (const int id : {minus, slider, plus, field}) EXPECT_TRUE(page.driver.IsEnabled(id));
    EXPECT_TRUE(page.boxes.Take().empty());
  }
}

TEST(Setup5, KeystonesRememberDeviceValuesOfStepsAndPositionsOfReleases) {
  Type5Page page(kSetupTab, 42, {{"GetKeystoneV", 100}, {"DecrementKeystoneV", 99}});
  const auto positionAfterRefusal = [&page](int slider, const char* set) {
    page.projector.Refuse(set);
    page.driver.Press(slider, Qt::Key_Right);
    page.projector.Accept(set);
    return page.driver.SliderAt(slider);
  };
  EXPECT_EQ(positionAfterRefusal(20310, "SetKeystoneV"), 100) << "as read";
  EXPECT_EQ(page.driver.Text(20314), "-28") << "only the slider moves";
  EXPECT_EQ(positionAfterRefusal(20311, "SetKeystoneH"), 100) << "as the vertical one";
  page.driver.Click(20308);
  EXPECT_EQ(positionAfterRefusal(20310, "SetKeystoneV"), 99) << "as stepped";
  page.driver.Press(20310, Qt::Key_Home);
  EXPECT_EQ(page.driver.Text(20314), "-128");
  EXPECT_EQ(positionAfterRefusal(20310, "SetKeystoneV"), -128) << "as released";
  page.projector.Answer("GetKeystoneV", 128);
  page.driver.Click(kReset);
  EXPECT_EQ(page.driver.SliderAt(20310), 0);
  EXPECT_EQ(positionAfterRefusal(20310, "SetKeystoneV"), -128) << "a reset is not remembered";
}

TEST(Setup5, TheVolumeIsThatOfTheCurrentInput) {
  Type5Page page(kSetupTab, 42, {{"GetInputSource", 3}, {"GetInputSrcVolume 3", 12}});
  const auto expectShown = [&page](const QString& source, int volume, const Strings& sent) {
    EXPECT_EQ(page.projector.TakeChanges(), sent);
    EXPECT_EQ(page.driver.Text(kCurrentInput), source);
    page.ExpectValue(20317, volume, 20142, QString::number(volume));
  };
  expectShown("3", 12, {});
  page.projector.Answer("GetInputSource", 5);
  page.projector.Answer("IncrementInputSrcVol 5", 14);
  page.driver.Click(20319);
  expectShown("5", 14, {"IncrementInputSrcVol 5"});
  page.driver.Drag(20317, 20);
  expectShown("5", 20, {"SetVolumeEachSrc 5 20"});
  page.projector.Refuse("DecrementInputSrcVol 5");
  page.driver.Click(20318);
  expectShown("5", 20, {"DecrementInputSrcVol 5"});
  page.projector.Refuse("GetInputSource");
  page.driver.Drag(20317, 30);
  expectShown("5", 20, {});
  page.driver.Click(20318);  // without a source only the buttons go on
  expectShown("0", 0, {"DecrementInputSrcVol 0"});
  page.Page().InitDisp();
  EXPECT_FALSE(page.driver.IsEnabled(20317));
  EXPECT_EQ(page.driver.Text(20142) + page.driver.Text(kCurrentInput), "");
}

TEST(Setup5, OnlyTheZoomButtonsInsistOnTheResultOne) {
  Type5Page page(kSetupTab, 44, {{"Get 0x300A", 95}, {"Get 0x300B", 131}});
  for (const char* key : {"Get 0x300A", "Set 0x300A", "Dec 0x300A", "Get 0x300B", "Inc 0x300B"}) {
    page.projector.AnswerResult(key, 2);
  }
  page.driver.Click(20335);
  EXPECT_EQ(page.driver.Text(20144), "3");
  page.Page().InitDisp();
  page.ExpectValue(20332, 95, 20143, "95");
  page.driver.Drag(20332, 91);
  EXPECT_TRUE(page.boxes.Take().empty());
  page.driver.Click(20331);
  EXPECT_EQ(page.boxes.Take().size(), 1U);
  page.projector.AnswerResult("Dec 0x300A", 1);
  page.driver.Click(20331);
  page.ExpectValue(20332, 91, 20143, "91");  // a read-back is as strict as its step
}

TEST(Setup5, ResetsShowWhatTheyGaveWithoutAWord) {
  for (const auto& [code, position, execute, read, field, shown] :
       {std::tuple{42, 0, "ExecKeyStoneVReset", "GetKeystoneV", 20314, "5"},
        {42, 1, "ExecKeyStoneHReset", "GetKeystoneH", 20141, "5"},
        {44, 1, "ExecDZoomReset", "Get 0x300A", 20143, "133"},
        {44, 2, "ExecDShiftVReset", "Get 0x300B", 20144, "5"},
        {44, 3, "ExecDShiftHReset", "Get 0x300C", 20145, "5"}}) {
    Type5Page page(kSetupTab, code);
    EXPECT_EQ(page.driver.Selected(kResets), 0);
    page.driver.Choose(kResets, position);
    page.projector.Answer(read, 133);
    page.driver.Click(kReset);
    EXPECT_EQ(page.projector.Take(), (Strings{execute, read}));
    EXPECT_EQ(page.driver.Text(field), shown);
    page.projector.Refuse(execute);
    page.driver.Click(kReset);
    EXPECT_EQ(page.projector.Take(), Strings{execute});
    EXPECT_TRUE(page.boxes.Take().empty());
  }
}

TEST(Setup5, AnUnknownLampModeMovesThoseBehindItUp) {
  CModelInfo2 model = MakeModel(5, 44);
  for (const char* name : {"Normal", "Eco", "Bright"}) AddEntry(model.WhisperList, 0, name);
  Type5Page page(kSetupTab, model);
  EXPECT_EQ(page.driver.Entries(20315), (QStringList{"Normal", "Bright"}));
  page.driver.Choose(20315, 1);
  EXPECT_EQ(page.projector.Take(), Strings{"SetWhisper 1"});
}

TEST(Setup5, OnlySavingIsAskedForFirst) {
  for (const bool yes : {false, true}) {
    MessageBoxes boxes(yes);
    OpenDialog open(MakeModel(5, 53), kSetupTab);
    open.Driver().Choose(kStandby, 1);
    const auto seen = boxes.Take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, CatalogString(kErrorCategory, 1002));
    EXPECT_EQ(seen[0].icon, QMessageBox::Information);
    EXPECT_EQ(open.Projector().Take(), Strings{yes ? "SetStandbyMode 1" : "GetStandbyMode"});
    EXPECT_EQ(open.Driver().Selected(kStandby), yes ? 1 : 0);
  }
}

TEST(Setup5, ArrowButtonsBearAPictureAndKeepTheirSignAsTheirName) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  const Type5Page page(kSetupTab, 44);
  const auto& left = page.driver.Item<QAbstractButton>(20334);
  EXPECT_LT(left.x(), page.driver.Item<QAbstractButton>(20350).x()) << "also where all is mirrored";
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  // A point that the picture covers, and its mirror image that it leaves blank.
  for (const auto& [id, name, ink, blank] :
       {std::tuple{20335, "D-Shift V ↑", QPoint(8, 28), QPoint(8, 12)},
        {20336, "D-Shift V ↓", QPoint(8, 12), QPoint(8, 28)},
        {20334, "D-Shift H ←", QPoint(28, 8), QPoint(12, 8)},
        {20350, "D-Shift H →", QPoint(12, 8), QPoint(28, 8)}}) {
    const auto& button = page.driver.Item<QAbstractButton>(id);
    EXPECT_EQ(button.accessibleName(), name);
    EXPECT_EQ(button.text(), "");
    const QImage image = button.icon().pixmap(40, 40).toImage().scaled(40, 40);
    EXPECT_GT(qAlpha(image.pixel(ink)), 0) << name;
    EXPECT_EQ(qAlpha(image.pixel(blank)), 0) << name;
  }
  EXPECT_TRUE(ArrowBitmap(1).isNull());
}

TEST(Audio5, OtherModelsLeaveThePageEmptyAndUnlocalized) {
  for (const int code : {29, 32, 40, 44, 47, 48, 55}) {
    Type5Page page(kAudioTab, code);
    page.Audio().show();
    page.Audio().InitDisp();
    EXPECT_EQ(page.projector.Take(), Strings{});
    for (const auto* child : page.Audio().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      EXPECT_TRUE(child->isHidden());
    }
    EXPECT_EQ(page.Audio().Item<QLabel>(20601).text(), "1;Volume\t\t:");
  }
}

// Also a row that a model does not have has a handler with a name.
TEST(Audio5, TheFlagOfTheDigitalInputsDependsOnRowAndModel) {
  for (const int code : {30, 31, 41, 43, 46, 49, 50, 51, 52, 53, 54}) {
    Type5Page page(kAudioTab, code);
    const bool m1d = code == 41 || code == 43;
    const bool hdmi = m1d || code == 51 || code == 53 || code == 54;
    for (const int list : {20359, kHdmi}) page.driver.Item<CComboBox>(list).Select(2);
    page.Audio().OnCbnSelchangeAud5Am1dcomb();
    page.Audio().OnCbnSelchangeAud5Ahdmicomb();
    EXPECT_EQ(page.projector.Take(), (Strings{m1d ? "SetAudioM1D 2 1" : "SetAudioM1D 2 0",
                                              hdmi ? "SetAudioM1D 2 1" : "SetAudioM1D 2 0"}))
        << code;
  }
}

TEST(Audio5, ARefreshMapsOddValuesButARefusalDoesNot) {
  Type5Page page(kAudioTab, 54, {{"GetAudioM1D", 32}, {"GetAudioMIU", 16}, {"GetHDMIAudio", 2}});
  for (const char* set : {"SetAudioM1D", "SetAudioMIU", "SetHDMIAudio"}) page.projector.Refuse(set);
  const auto expectSelected = [&page](int hdmi, int miu, int hdmiAudio) {
    EXPECT_EQ(page.driver.Selected(kHdmi), hdmi);
    EXPECT_EQ(page.driver.Selected(kMiu), miu);
    EXPECT_EQ(page.driver.Selected(kHdmiAudio), hdmiAudio);
  };
  expectSelected(5, 5, 1);
  for (const int list : {kHdmi, kMiu, kHdmiAudio}) page.driver.Choose(list, 0);
  expectSelected(-1, -1, 1);  // 32 and 16 are taken for positions
  page.projector.Answer("GetAudioM1D", 5);
  page.Page().InitDisp();
  expectSelected(5, 5, 1);  // and so is a value without an entry
}

TEST(Audio5, TheActiveSourceFollowsRunningStateAndModel) {
  using Case = std::tuple<int, int, std::string, std::string>;
  for (const int code : {30, 31, 41, 43, 46, 49, 50, 51, 52, 53, 54}) {
    for (const auto& [state, input, withoutStandby, withStandby] :
         {Case{0, 3, "3", "15"}, Case{2, 3, "3", "15"}, Case{2, -1, "", "15"}, Case{1, 3, "3", "3"},
          Case{4, 0, "0", "0"}, Case{1, -1, "", ""}, Case{-1, 3, "3", ""}, Case{-1, -1, "", ""}}) {
      SCOPED_TRACE(testing::Message() << code << " state " << state << " input " << input);
      const std::string& source = code >= 49 ? withStandby : withoutStandby;
      Type5Page page(
          kAudioTab, code,
          {{"Get 0x6000", state}, {"GetInputSource", input}, {"GetInputSrcVolume " + source, 7}});
      EXPECT_EQ(page.driver.Text(20355), source.empty() ? "" : "7");
      page.driver.Click(20346);
      page.driver.Drag(20347, 30);
      const Strings sent{"IncrementInputSrcVol " + source, "SetVolumeEachSrc " + source + " 30"};
      EXPECT_EQ(page.projector.TakeChanges(), source.empty() ? Strings{} : sent);
    }
  }
}

TEST(Audio5, TonesStepAndSlide) {
  for (const auto& [minus, slider, plus, field, bias, read, set, step] :
       {std::tuple{20345, 20347, 20346, 20355, 0, "GetInputSrcVolume 3",
                   std::string("SetVolumeEachSrc 3"), std::string("InputSrcVol 3")},
        {20348, 20350, 20349, 20315, 128, "GetInputSrcTreble 3", "SetInputSrcTreble 3",
         "InputSrcTreb 3"},
        {20351, 20353, 20352, 20316, 128, "GetInputSrcBass 3", "SetInputSrcBass 3",
         "InputSrcBass 3"}}) {
    const std::string up = "Increment" + step, down = "Decrement" + step;
    SCOPED_TRACE(up);
    Type5Page page(kAudioTab, 41,
                   {{"GetInputSource", 3}, {read, bias + 2}, {down, bias + 2}, {up, bias + 3}});
    page.ExpectValue(slider, 2, field, "2");
    page.driver.Drag(slider, 1);
    page.ExpectValue(slider, 1, field, "1");
    page.projector.Refuse(set);
    page.driver.Drag(slider, 3);
    page.ExpectValue(slider, 1, field, "");
    page.driver.Click(minus);
    page.ExpectValue(slider, 2, field, "2");
    page.driver.Click(plus);
    page.projector.Refuse(down);
    page.driver.Click(minus);
    page.ExpectValue(slider, 3, field, "3");
    page.driver.Drag(slider, 0);
    // A button remembers the device value, which has another zero; a slider its position.
    page.ExpectValue(slider, bias == 0 ? 3 : 4, field, "");
    const auto sets = [&](int value) { return set + ' ' + std::to_string(value + bias); };
    EXPECT_EQ(page.projector.TakeChanges(), (Strings{sets(1), sets(3), down, up, down, sets(0)}));
    page.Page().InitDisp();
    page.ExpectValue(slider, 2, field, "2");
    page.projector.Refuse(read);
    page.Page().InitDisp();
    page.ExpectValue(slider, 2, field, "");
  }
}

TEST(Audio5, ARefusedSurroundShowsTheProjectors) {
  Type5Page page(kAudioTab, 41, {{"GetInputSource", 3}, {"GetSRSWOW 3", 3}, {"SetSRSWOW 3", -1}});
  EXPECT_EQ(page.driver.Selected(kSurround), 2);
  for (const auto& [value, position] : {std::pair{2, 1}, {0, 0}, {3, 2}, {1, 0}}) {
    page.projector.Answer("GetSRSWOW 3", value);
    page.driver.Choose(kSurround, 1);
    EXPECT_EQ(page.driver.Selected(kSurround), position);
  }
  EXPECT_EQ(page.Dialog().Projector().SettingText, "Mid");
  page.projector.Refuse("GetInputSource");
  page.projector.Take();
  page.driver.Choose(kSurround, 2);
  EXPECT_EQ(page.projector.TakeChanges(), Strings{}) << "without a source nothing is sent";
}

}  // namespace
