// The pages of the newest page set.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QGuiApplication>
#include <QLabel>

#include "pages/input/CInputType5Dlg.h"
#include "pages/setup/CAudioType5Dlg.h"
#include "pages/setup/CSetupType5TabDlg.h"
#include "resources/ArrowBitmap.h"
#include "tests/support/DialogDriver.h"

namespace {

constexpr int kInputTab = 3, kSetupTab = 4, kAudioTab = 5;
constexpr int kCurrentInput = 20337, kReset = 20328, kStandby = 20368, kHdmi = 20367;

/// The shown page of a model, on a projector with these values; −1 is a refusal.
struct Type5Page : OpenDialog {
  Type5Page(int tab, int code, const std::map<std::string, int>& values = {})
      : OpenDialog(FullModel(5, code), tab, Answers(values)) {}

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

TEST(Input5, CaptionsAreLocalizedWithoutRowsAndNeverGreyed) {
  EXPECT_EQ(Type5Page(kInputTab, 47).driver.Text(20500), "Progressive");
  Type5Page page(kInputTab, 54, {{"GetProgressive", -1}});
  EXPECT_FALSE(page.driver.Item<QWidget>(20294).isEnabled());
  for (const int caption : {20500, 20508})
    EXPECT_TRUE(page.driver.Item<QWidget>(caption).isEnabled());
  static_cast<CInputType5Dlg&>(page.Page()).Init();
  EXPECT_FALSE(page.projector.Take().empty());
  EXPECT_EQ(CInputType5Dlg::VideoFmtToIdx(7), 6);
  EXPECT_EQ(CInputType5Dlg::VideoFmtToIdx(-1), -1) << "the table's end is none of its values";
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

TEST(Setup5, TheVolumeBelongsToTheCurrentInput) {
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
  page.driver.Click(20318);  // without a source only the buttons work
  expectShown("0", 0, {"DecrementInputSrcVol 0"});
  page.Page().InitDisp();
  EXPECT_FALSE(page.driver.IsEnabled(20317));
  EXPECT_EQ(page.driver.Text(20142) + page.driver.Text(kCurrentInput), "");
  for (const bool disabled : {false, true}) {
    static_cast<CSetupType5TabDlg&>(page.Page()).DisableVolumeCtrl(disabled);
    EXPECT_NE(page.driver.IsEnabled(20317), disabled);
  }
}

TEST(Setup5, OnlyTheZoomButtonsRequireTheResultOne) {
  Type5Page page(kSetupTab, 44, {{"Get 0x300A", 95}, {"Get 0x300B", 131}});
  for (const char* key : {"Get 0x300A", "Set 0x300A", "Dec 0x300A", "Get 0x300B", "Inc 0x300B"})
    page.projector.AnswerResult(key, 2);
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
  page.ExpectValue(20332, 91, 20143, "91");  // the value is read back as strictly as it is stepped
}

TEST(Setup5, AnUnknownLampModeMovesTheNextOnesUp) {
  CModelInfo2 model = MakeModel(5, 44);
  for (const char* name : {"Normal", "Eco", "Bright"}) AddEntry(model.WhisperList, 0, name);
  OpenDialog open(model, kSetupTab);
  EXPECT_EQ(open.Driver().Entries(20315), (QStringList{"Normal", "Bright"}));
  open.Driver().Choose(20315, 1);
  EXPECT_EQ(open.Projector().Take(), Strings{"SetWhisper 1"});
}

TEST(Setup5, SavingIsSentIfTheAnswerIsYes) {
  MessageBoxes boxes(true);
  OpenDialog open(MakeModel(5, 53), kSetupTab);
  open.Driver().Choose(kStandby, 1);
  EXPECT_EQ(open.Projector().Take(), Strings{"SetStandbyMode 1"});
  EXPECT_EQ(open.Driver().Selected(kStandby), 1);
}

TEST(Setup5, ArrowButtonsShowAPictureAndKeepTheirSignAsTheirName) {
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  const Type5Page page(kSetupTab, 44);
  const auto& left = page.driver.Item<QAbstractButton>(20334);
  EXPECT_LT(left.x(), page.driver.Item<QAbstractButton>(20350).x()) << "also where all is mirrored";
  const auto& up = page.driver.Item<QAbstractButton>(20335);
  EXPECT_TRUE(page.driver.Item<QLabel>(20612).alignment().testFlag(Qt::AlignRight))
      << "its text, H, runs from left to right";
  EXPECT_GT(up.x(), page.driver.Item<QAbstractButton>(20336).x()) << "up comes first";
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  // A point that the arrow covers, and its mirror image, which stays blank.
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

TEST(Audio5, ThePageIsEmptyAndUnlocalizedForOtherModels) {
  for (const int code : {29, 32, 40, 44, 47, 48, 55}) {
    Type5Page page(kAudioTab, code);
    page.Audio().show();
    page.Audio().InitDisp();
    EXPECT_EQ(page.projector.Take(), Strings{});
    for (const auto* child : page.Audio().findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
      EXPECT_TRUE(child->isHidden());
    EXPECT_EQ(page.Audio().Item<QLabel>(20601).text(), "1;Volume\t\t:");
  }
}

// Even a row that the model does not have has a named handler.
TEST(Audio5, TheFlagOfTheDigitalInputsDependsOnRowAndModel) {
  for (const int code : {30, 31, 41, 43, 46, 49, 50, 51, 52, 53, 54}) {
    Type5Page page(kAudioTab, code);
    const bool m1d = code == 41 || code == 43, hdmi = m1d || code == 51 || code == 53 || code == 54;
    for (const int list : {20359, kHdmi}) page.driver.Item<CComboBox>(list).Select(2);
    page.Audio().OnCbnSelchangeAud5Am1dcomb();
    page.Audio().OnCbnSelchangeAud5Ahdmicomb();
    EXPECT_EQ(page.projector.Take(), (Strings{m1d ? "SetAudioM1D 2 1" : "SetAudioM1D 2 0",
                                              hdmi ? "SetAudioM1D 2 1" : "SetAudioM1D 2 0"}))
        << code;
  }
}

TEST(Audio5, TheActiveSourceFollowsRunningStateAndModel) {
  using Case = std::tuple<int, int, std::string, std::string>;
  constexpr int kMinusOne = 0xFFFF;  // as an answer
  for (const int code : {30, 31, 41, 43, 46, 49, 50, 51, 52, 53, 54}) {
    for (const auto& [state, input, withoutStandby, withStandby] :
         {Case{0, 3, "3", "15"}, Case{2, 3, "3", "15"}, Case{2, -1, "", "15"}, Case{1, 3, "3", "3"},
          Case{4, 0, "0", "0"}, Case{1, -1, "", ""}, Case{1, kMinusOne, "", ""},
          Case{-1, 3, "3", ""}, Case{-1, -1, "", ""}}) {
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

// The device value has another zero point. A slider remembers its position instead.
TEST(Audio5, AButtonRemembersTheDeviceValue) {
  Type5Page page(kAudioTab, 41, {{"GetInputSource", 3}, {"IncrementInputSrcTreb 3", 131}});
  page.projector.Refuse("SetInputSrcTreble 3");
  page.driver.Click(20349);
  page.ExpectValue(20350, 3, 20315, "3");
  page.driver.Drag(20350, 0);
  page.ExpectValue(20350, 4, 20315, "");
  EXPECT_THAT(Menu(page.Page(), 20350), testing::HasSubstr("(Enter a value…)"));
  EXPECT_EQ(DialogDriver(page.Dialog().Page(PageId::SetupType5)).Text(20142), "16") << "not read";
}

}  // namespace
