#include <optional>

#include <QLabel>
#include <gtest/gtest.h>

#include "pages/setup/CAudioType5Dlg.h"
#include "tests/support/NumberedCatalog.h"
#include "tests/support/PageTables.h"

namespace {

using Strings = std::vector<std::string>;

void Running(RecordingChannel& projector) {
  projector.Answer("Get 0x6000", 1);
  projector.Answer("GetInputSource", 3);
  projector.Answer("GetInputSrcVolume 3", 20);
  projector.Answer("GetInputSrcBass 3", 125);
  projector.Answer("GetSRSWOW 3", 3);
}

struct AudioPage : OpenDialog {
  explicit AudioPage(const CModelInfo2& model,
                     const std::function<void(RecordingChannel&)>& script = Running)
      : OpenDialog(model, 5, script) {}
  explicit AudioPage(int code, const std::function<void(RecordingChannel&)>& script = Running)
      : AudioPage(MakeModel(5, code), script) {}

  CAudioType5Dlg& Audio() {
    return static_cast<CAudioType5Dlg&>(Dialog().Page(PageId::AudioType5));
  }
};

const ReadRow kRows[] = {
    {20347, "GetInputSrcVolume 3"}, {20350, "GetInputSrcTreble 3"}, {20353, "GetInputSrcBass 3"},
    {20381, "GetSRSWOW 3"},         {20354, "GetSpeaker"},          {20356, "GetAudioRGB1"},
    {20365, "GetAudioRGB1"},        {20358, "GetAudioRGB2"},        {20366, "GetAudioRGB2"},
    {20359, "GetAudioM1D"},         {20367, "GetAudioM1D"},         {20360, "GetAudioVideo"},
    {20361, "GetAudioSVideo"},      {20362, "GetAudioComponent"},   {20363, "GetAudioMIU"},
    {20368, "GetAudioOutStandby"},  {20364, "GetHDMIAudio"},
};
const RowsOfModels kModels{
    {"30", "11111101010111000"}, {"31", "11111101010111100"},    {"41", "11111101001111101"},
    {"43", "11111101001111001"}, {"46 52", "10001101000111000"}, {"49 50", "10001010100111010"},
    {"51", "11111101001111011"}, {"53", "10001010101111011"},    {"54", "11111101001111111"},
};
constexpr int kCodes[] = {30, 31, 41, 43, 46, 49, 50, 51, 52, 53, 54};

TEST(Audio5, EachModelShowsAndReadsItsRowsInOrder) {
  for (const int code : kCodes) {
    SCOPED_TRACE(code);
    AudioPage open(code);
    open.Page().InitDisp();
    Strings sent = open.Projector().Take();
    ASSERT_GE(sent.size(), 2U);
    EXPECT_EQ(Strings(sent.begin(), sent.begin() + 2), (Strings{"Get 0x6000", "GetInputSource"}));
    sent.erase(sent.begin(), sent.begin() + 2);
    ExpectRows(kRows, DigitsOf(kModels, code), open.Page(), sent);
  }
}

TEST(Audio5, OtherModelsLeaveThePageEmptyAndUnlocalized) {
  for (const int code : {29, 32, 40, 44, 47, 48, 55}) {
    AudioPage open(code);
    open.Projector().Take();
    open.Audio().show();
    open.Audio().InitDisp();
    EXPECT_EQ(open.Projector().Take(), Strings{});
    for (const auto* child : open.Audio().findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      EXPECT_TRUE(child->isHidden());
    }
    EXPECT_EQ(open.Audio().Item<QLabel>(20601).text(), "1;Volume\t\t:");
  }
}

TEST(Audio5, ListsAskForTheirTexts) {
  const NumberedCatalog catalog;
  for (const int code : kCodes) {
    SCOPED_TRACE(code);
    AudioPage open(code);
    QStringList audio{"30", "40", "41", "42"};
    if (code != 49 && code != 50 && code != 53) audio << "43";
    for (const int list : {20356, 20365, 20358, 20366, 20359, 20360, 20361, 20362, 20368}) {
      EXPECT_EQ(open.Driver().Entries(list), audio) << list;
    }
    EXPECT_EQ(open.Driver().Entries(20367), audio + QStringList{"45"});
    EXPECT_EQ(open.Driver().Entries(20363), audio + QStringList{"44"});
    EXPECT_EQ(open.Driver().Entries(20381), (QStringList{"327", "32", "33"}));
  }
}

TEST(Audio5, EachChoiceSendsItsValue) {
  const ListChoice choices[] = {
      {54, 20381, 0, "SetSRSWOW 3 0"},        {54, 20381, 1, "SetSRSWOW 3 2"},
      {54, 20381, 2, "SetSRSWOW 3 3"},        {54, 20354, 1, "SetSpeaker 1"},
      {54, 20356, 4, "SetAudioRGB1 4"},       {54, 20358, 0, "SetAudioRGB2 0"},
      {53, 20365, 3, "SetAudioComputer1 3"},  {53, 20366, 1, "SetAudioComputer2 1"},
      {30, 20359, 4, "SetAudioM1D 4 0"},      {54, 20367, 5, "SetAudioM1D 32 1"},
      {53, 20367, 4, "SetAudioM1D 4 1"},      {54, 20360, 2, "SetAudioVideo 2"},
      {54, 20361, 2, "SetAudioSVideo 2"},     {54, 20362, 2, "SetAudioComponent 2"},
      {54, 20363, 5, "SetAudioMIU 16"},       {54, 20363, 1, "SetAudioMIU 1"},
      {54, 20368, 1, "SetAudioOutStandby 1"}, {54, 20364, 0, "SetHDMIAudio 1"},
      {54, 20364, 1, "SetHDMIAudio 2"},
  };
  for (const ListChoice& choice : choices) {
    AudioPage open(choice.modelCode);
    ExpectSent(choice, open);
    const QString told = QString::fromStdString(open.Dialog().Projector().SettingText);
    EXPECT_EQ(told, choice.list == 20364 ? QString() : open.Driver().Text(choice.list));
  }
}

TEST(Audio5, TheFlagOfTheDigitalInputsDependsOnRowAndModel) {
  for (const int code : kCodes) {
    AudioPage open(code);
    const bool m1d = code == 41 || code == 43;
    const bool hdmi = m1d || code == 51 || code == 53 || code == 54;
    for (const int list : {20359, 20367}) open.Driver().Item<CComboBox>(list).Select(2);
    open.Audio().OnCbnSelchangeAud5Am1dcomb();
    open.Audio().OnCbnSelchangeAud5Ahdmicomb();
    EXPECT_EQ(open.Projector().Take(), (Strings{m1d ? "SetAudioM1D 2 1" : "SetAudioM1D 2 0",
                                                hdmi ? "SetAudioM1D 2 1" : "SetAudioM1D 2 0"}))
        << code;
  }
}

TEST(Audio5, ARefreshMapsOddValuesButARefusalDoesNot) {
  AudioPage open(54, [](RecordingChannel& projector) {
    Running(projector);
    projector.Answer("GetAudioM1D", 32);
    projector.Answer("GetAudioMIU", 16);
    projector.Answer("GetHDMIAudio", 2);
    for (const char* set : {"SetAudioM1D", "SetAudioMIU", "SetHDMIAudio"}) projector.Refuse(set);
  });
  const DialogDriver driver = open.Driver();
  const auto expectSelected = [&](int hdmi, int miu, int hdmiAudio) {
    EXPECT_EQ(driver.Selected(20367), hdmi);
    EXPECT_EQ(driver.Selected(20363), miu);
    EXPECT_EQ(driver.Selected(20364), hdmiAudio);
  };
  expectSelected(5, 5, 1);
  driver.Choose(20367, 1);
  EXPECT_EQ(open.Projector().Take(), (Strings{"SetAudioM1D 1 1", "GetAudioM1D"}));
  driver.Choose(20363, 1);
  driver.Choose(20364, 0);
  expectSelected(-1, -1, 1);  // 32 and 16 are taken for positions
  open.Projector().Answer("GetAudioM1D", 3);
  driver.Choose(20367, 1);
  expectSelected(3, -1, 1);
  open.Projector().Answer("GetHDMIAudio", 0);
  open.Projector().Refuse("GetAudioM1D");
  open.Page().InitDisp();
  expectSelected(3, 5, 1);  // an unknown mode and a failed read leave their lists
  EXPECT_TRUE(driver.IsEnabled(20367));

  AudioPage older(30, [](RecordingChannel& projector) { projector.Answer("GetAudioM1D", 32); });
  EXPECT_EQ(older.Driver().Selected(20359), -1) << "only the HDMI row knows 32";
}

TEST(Audio5, TheActiveSourceFollowsRunningStateAndModel) {
  struct Case {
    std::optional<int> state, input;
    std::string source, sourceWithStandby;
  };
  const Case cases[] = {{0, 3, "3", "15"}, {2, 3, "3", "15"}, {2, {}, "", "15"}, {1, 3, "3", "3"},
                        {4, 0, "0", "0"},  {1, {}, "", ""},   {{}, 3, "3", ""},  {{}, {}, "", ""}};
  for (const int code : kCodes) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::to_string(code) + " state " + std::to_string(c.state.value_or(-1)) +
                   " input " + std::to_string(c.input.value_or(-1)));
      AudioPage open(code, [&](RecordingChannel& projector) {
        c.state ? projector.Answer("Get 0x6000", *c.state) : projector.Refuse("Get 0x6000");
        c.input ? projector.Answer("GetInputSource", *c.input) : projector.Refuse("GetInputSource");
      });
      const std::string& source = code >= 49 ? c.sourceWithStandby : c.source;
      EXPECT_EQ(open.Driver().Text(20355), source.empty() ? "" : "0");
      open.Driver().Click(20346);
      open.Driver().Drag(20347, 30);
      const Strings sent{"IncrementInputSrcVol " + source, "SetVolumeEachSrc " + source + " 30"};
      EXPECT_EQ(open.Projector().TakeChanges(), source.empty() ? Strings{} : sent);
    }
  }
}

TEST(Audio5, TonesStepAndSlide) {
  struct Tone {
    int minus, slider, plus, field, bias;
    std::string set, increment, decrement;
  };
  const Tone tones[] = {
      {20345, 20347, 20346, 20355, 0, "SetVolumeEachSrc 3", "IncrementInputSrcVol 3",
       "DecrementInputSrcVol 3"},
      {20348, 20350, 20349, 20315, 128, "SetInputSrcTreble 3", "IncrementInputSrcTreb 3",
       "DecrementInputSrcTreb 3"},
      {20351, 20353, 20352, 20316, 128, "SetInputSrcBass 3", "IncrementInputSrcBass 3",
       "DecrementInputSrcBass 3"},
  };
  for (const Tone& tone : tones) {
    SCOPED_TRACE(tone.set);
    AudioPage open(41);
    const DialogDriver driver = open.Driver();
    RecordingChannel& projector = open.Projector();
    const auto expectShown = [&](int value, const QString& text) {
      EXPECT_EQ(driver.SliderAt(tone.slider), value);
      EXPECT_EQ(driver.Text(tone.field), text);
    };
    driver.Drag(tone.slider, 4);
    EXPECT_EQ(projector.Take(), (Strings{"Get 0x6000", "GetInputSource",
                                         tone.set + " " + std::to_string(4 + tone.bias)}));
    expectShown(4, "4");
    projector.Answer(tone.decrement, tone.bias + 1);
    driver.Click(tone.minus);
    EXPECT_EQ(projector.TakeChanges(), Strings{tone.decrement});
    expectShown(1, "1");
    projector.Answer(tone.increment, tone.bias + 2);
    driver.Click(tone.plus);
    expectShown(2, "2");
    projector.Refuse(tone.decrement);
    driver.Click(tone.minus);
    expectShown(2, "2");
    // A button remembers the device value, which has another zero; a slider its position.
    projector.Refuse(tone.set);
    driver.Drag(tone.slider, 0);
    expectShown(tone.bias == 0 ? 2 : 4, "");
    projector.Accept(tone.set);
    driver.Drag(tone.slider, 1);
    projector.Refuse(tone.set);
    driver.Drag(tone.slider, 3);
    expectShown(1, "");
  }
}

TEST(Audio5, TonesHaveTheModelsRangesAndAFailedReadEmptiesTheField) {
  CModelInfo2 model = MakeModel(5, 41);
  model.RangeText(RangeIndex::Volume) = "10,40";
  model.RangeText(RangeIndex::Treble) = "120,134";
  model.RangeText(RangeIndex::Bass) = "124,130";
  AudioPage ranged(model, [](RecordingChannel& projector) {
    Running(projector);
    projector.Refuse("GetInputSrcTreble 3");
  });
  AudioPage open(41);
  const auto range = [](OpenDialog& dialog, int slider) {
    const auto& control = dialog.Driver().Item<QSlider>(slider);
    return std::vector{control.minimum(), control.maximum(), control.tickInterval()};
  };
  EXPECT_EQ(range(ranged, 20347), (std::vector{10, 40, 4}));
  EXPECT_EQ(range(ranged, 20350), (std::vector{-8, 6, 1}));
  EXPECT_EQ(range(ranged, 20353), (std::vector{-4, 2, 1}));
  EXPECT_EQ(range(open, 20347), (std::vector{0, 48, 4}));
  EXPECT_EQ(range(open, 20350), (std::vector{-4, 4, 1}));
  EXPECT_EQ(ranged.Driver().Text(20355), "20");
  EXPECT_EQ(ranged.Driver().Text(20315), "");
  EXPECT_EQ(ranged.Driver().Text(20316), "-3");
}

TEST(Audio5, ARefusedSurroundShowsTheProjectors) {
  AudioPage open(41);
  EXPECT_EQ(open.Driver().Selected(20381), 2);
  open.Projector().Refuse("SetSRSWOW 3");
  for (const auto& [value, position] : {std::pair{2, 1}, {0, 0}, {3, 2}, {1, 0}}) {
    open.Projector().Answer("GetSRSWOW 3", value);
    open.Driver().Choose(20381, 1);
    EXPECT_EQ(open.Driver().Selected(20381), position);
  }
  open.Projector().Refuse("GetInputSource");
  open.Projector().Take();
  open.Driver().Choose(20381, 2);
  EXPECT_EQ(open.Projector().TakeChanges(), Strings{}) << "without a source nothing is sent";
}

}  // namespace
