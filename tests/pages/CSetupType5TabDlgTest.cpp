#include <algorithm>
#include <iterator>
#include <memory>
#include <sstream>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "pages/setup/CSetupType5TabDlg.h"
#include "resources/ArrowBitmap.h"
#include "tests/pages/SetupPage.h"

namespace {

// Short name, controls and reads of each row, from top to bottom.
struct RowFacts {
  std::string name;
  std::vector<int> controls;
  Strings reads = {};
};

const std::vector<RowFacts> kLeft{
    {"Auto", {20305}},
    {"V", {20308, 20310, 20309, 20314}, {"GetKeystoneV"}},
    {"H", {20312, 20311, 20313, 20141}, {"GetKeystoneH"}},
    {"Whisper", {20315}, {"GetWhisper"}},
    {"Mirror", {20316}, {"GetMirror"}},
    {"Volume", {20318, 20317, 20319, 20142}, {"GetInputSource", "GetInputSrcVolume 0"}},
    {"Input", {20337}},
    {"Speaker", {20321}, {"GetSpeaker"}},
    {"Zoom", {20331, 20332, 20333, 20143}, {"Get 0x300A"}},
    {"ShiftV", {20335, 20336, 20144}, {"Get 0x300B"}},
    {"ShiftH", {20334, 20350, 20145}, {"Get 0x300C"}},
    {"Reset", {20327, 20328}},
};
const std::vector<RowFacts> kRight{
    {"RGB1", {20320}, {"GetAudioRGB1"}},
    {"Comp1", {20369}, {"GetAudioRGB1"}},
    {"RGB2", {20322}, {"GetAudioRGB2"}},
    {"Comp2", {20370}, {"GetAudioRGB2"}},
    {"HDMI", {20329}, {"GetAudioM1D"}},
    {"Vid", {20323}, {"GetAudioVideo"}},
    {"SVid", {20324}, {"GetAudioSVideo"}},
    {"Cmp", {20325}, {"GetAudioComponent"}},
    {"MIU", {20326}, {"GetAudioMIU"}},
    {"HDMIAudio", {20330}, {"GetHDMIAudio"}},
    {"Standby", {20368}, {"GetStandbyMode"}},
    {"oRGB1", {20371}, {"GetMonitorOutComputer1"}},
    {"oComp1", {20360}, {"GetMonitorOutComputer1"}},
    {"oRGB2", {20372}, {"GetMonitorOutComputer2"}},
    {"oComp2", {20361}, {"GetMonitorOutComputer2"}},
    {"oHDMI", {20362}, {"GetMonitorOutHDMI"}},
    {"oCmp", {20363}, {"GetMonitorOutComponent"}},
    {"oSVid", {20364}, {"GetMonitorOutSVideo"}},
    {"oVid", {20365}, {"GetMonitorOutVideo"}},
    {"oMIU", {20366}, {"GetMonitorOutMIU"}},
    {"oStandby", {20367}, {"GetMonitorOutStandby"}},
};
// Two groups are read in another order than they stand in.
const char* const kReadOrder =
    "V H Whisper Mirror Speaker Volume Zoom ShiftV ShiftH RGB1 Comp1 RGB2 Comp2 HDMI Cmp SVid Vid "
    "MIU HDMIAudio Standby oRGB1 oComp1 oRGB2 oComp2 oHDMI oCmp oSVid oVid oMIU oStandby";

struct ModelCase {
  std::vector<int> codes;
  const char* left;
  const char* right;
};

// clang-format off
const ModelCase kModels[] = {
    {{30, 31, 41, 43, 46, 52}, "Auto V H Whisper Mirror", ""},
    {{32, 33}, "Auto V Whisper Mirror Volume Input", "RGB1 RGB2 Vid SVid Cmp"},
    {{36}, "Auto V Whisper Mirror Volume Input", "RGB1 RGB2 Vid SVid Cmp MIU"},
    {{37}, "Auto V Whisper Mirror Volume Input", "Comp1 Comp2 Vid SVid"},
    {{38}, "Auto V Whisper Mirror Volume Input", "MIU"},
    {{39, 45}, "Auto V Whisper Mirror Volume Input Speaker", "Comp1 Comp2 Vid SVid Cmp"},
    {{40}, "Auto V Whisper Mirror Volume Input Speaker", "Comp1 Comp2 Vid SVid Cmp MIU"},
    {{42}, "Auto V H Whisper Mirror Volume Input Speaker",
     "Comp1 Comp2 HDMI Vid SVid Cmp MIU HDMIAudio"},
    {{44}, "V Whisper Mirror Volume Input Speaker Zoom ShiftV ShiftH", "Comp1 Comp2 Vid SVid Cmp"},
    {{49, 50}, "Auto V Whisper Mirror", "Standby oComp1 oComp2 oCmp oSVid oVid oStandby"},
    {{51}, "Auto V H Whisper Mirror", "oRGB1 oRGB2 oHDMI oCmp oSVid oVid oStandby"},
    {{53}, "Auto V Whisper Mirror", "Standby oComp1 oComp2 oHDMI oCmp oSVid oVid oStandby"},
    {{54}, "Auto V H Whisper Mirror", "oRGB1 oRGB2 oHDMI oCmp oSVid oVid oMIU oStandby"},
    {{34, 35, 47, 48, 29, 55, 0}, "", ""},
};
// clang-format on

Strings Words(const std::string& text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

// The visible rows of a column, which stand packed at `pitch` (found with the first two rows) with
// all their controls on one line.
std::string VisibleRows(SetupPage& page, const std::vector<RowFacts>& column, int& pitch) {
  std::string names;
  int last = 0;
  for (const RowFacts& row : column) {
    const auto visible = std::ranges::count_if(
        row.controls, [&page](int id) { return page.driver.Item<QWidget>(id).isVisible(); });
    if (visible == 0) continue;
    EXPECT_EQ(visible, std::ssize(row.controls)) << row.name << " is shown in part";
    const int line = page.driver.Item<QWidget>(row.controls[0]).geometry().center().y();
    for (const int id : row.controls) {
      EXPECT_NEAR(page.driver.Item<QWidget>(id).geometry().center().y(), line, 1) << id;
    }
    if (row.name == "Reset") continue;  // at the foot of the page
    if (!names.empty()) {
      if (pitch == 0) pitch = line - last;
      EXPECT_NEAR(line - last, pitch, 1) << row.name << " leaves a gap";
      names += ' ';
    }
    names += row.name;
    last = line;
  }
  return names;
}

TEST(SetupRowsTest, EachModelShowsPacksAndReadsItsRows) {
  for (const ModelCase& model : kModels) {
    Strings reads;
    const Strings present = Words(std::string(model.left) + ' ' + model.right);
    for (const std::string& name : Words(kReadOrder)) {
      if (std::ranges::find(present, name) == present.end()) continue;
      for (const auto* column : {&kLeft, &kRight}) {
        const auto row = std::ranges::find(*column, name, &RowFacts::name);
        if (row != column->end()) reads.insert(reads.end(), row->reads.begin(), row->reads.end());
      }
    }
    for (const int code : model.codes) {
      SCOPED_TRACE(code);
      SetupPage page(code);
      int pitch = 0;
      EXPECT_EQ(VisibleRows(page, kLeft, pitch), model.left);
      EXPECT_EQ(VisibleRows(page, kRight, pitch), model.right);
      EXPECT_TRUE(page.driver.Item<QWidget>(20328).isVisible()) << "the resets are always there";
      page.open.Page().InitDisp();
      EXPECT_EQ(page.projector.Take(), reads);
    }
  }
}

TEST(SetupRowsTest, RangeTextsSetTheSliders) {
  struct Case {
    const char* text;
    Range keystone;
    int keystoneTicks;
    Range volume;
    int volumeTicks;
  };
  for (const Case& expected :
       {Case{"", {-128, 127}, 15, {0, 32}, 4}, Case{"0,255", {-128, 127}, 15, {0, 255}, 31},
        Case{"100,156", {-28, 28}, 3, {100, 156}, 19}, Case{"126,130", {-2, 2}, 1, {126, 130}, 16},
        Case{"0,100", {-128, -28}, 1, {0, 100}, 12},
        Case{"from 1 to 5", {-128, 127}, 15, {0, 32}, 4},
        Case{"9,", {-128, 127}, 15, {0, 32}, 4}}) {
    SCOPED_TRACE(expected.text);
    CModelInfo2 model = SetupModel(42);
    for (const auto index : {RangeIndex::KeystoneV, RangeIndex::KeystoneH, RangeIndex::Volume}) {
      model.RangeText(index) = expected.text;
    }
    SetupPage page(model);
    const auto expectSlider = [&page](int id, Range range, int ticks) {
      const auto& slider = page.driver.Item<QSlider>(id);
      EXPECT_EQ((Range{slider.minimum(), slider.maximum()}), range) << id;
      EXPECT_EQ(slider.tickInterval(), ticks) << id;
    };
    expectSlider(20310, expected.keystone, expected.keystoneTicks);
    expectSlider(20311, expected.keystone, expected.keystoneTicks);
    expectSlider(20317, expected.volume, expected.volumeTicks);
    expectSlider(20332, {80, 100}, 2);
  }
}

TEST(SetupRowsTest, FailedReadsDisableTheirRowsOnly) {
  for (const int code : {42, 44, 53}) {
    SCOPED_TRACE(code);
    SetupPage page(code);
    page.projector.Answer("GetInputSource", 3);
    const auto refuse = [&page](bool refused) {
      for (const auto* column : {&kLeft, &kRight}) {
        for (const RowFacts& row : *column) {
          for (std::string read : row.reads) {
            if (read == "GetInputSource") continue;  // the volume read fails on its own
            if (read == "GetInputSrcVolume 0") read = "GetInputSrcVolume 3";
            if (refused) {
              page.projector.Refuse(read);
            } else {
              page.projector.Accept(read);
            }
          }
        }
      }
      page.open.Page().InitDisp();
    };
    for (const bool refused : {true, false}) {
      refuse(refused);
      for (const auto* column : {&kLeft, &kRight}) {
        for (const RowFacts& row : *column) {
          for (const int id : row.controls) {
            const auto* control = &page.driver.Item<QWidget>(id);
            if (!control->isVisible()) continue;
            if (const auto* field = qobject_cast<const QLineEdit*>(control)) {
              EXPECT_EQ(field->text().isEmpty(), refused && id != 20337) << id;
            } else {
              EXPECT_EQ(control->isEnabled(), row.reads.empty() || !refused) << id;
            }
          }
        }
      }
      EXPECT_EQ(page.driver.IsEnabled(20314), !refused) << "the keystone field goes grey too";
      EXPECT_GT(page.driver.Entries(20327).size(), 0) << "resets do not depend on the reads";
    }
  }
}

struct KeystoneCase {
  int minus, slider, plus, field;
  const char* axis;
};
constexpr KeystoneCase kKeystones[] = {{20308, 20310, 20309, 20314, "KeystoneV"},
                                       {20312, 20311, 20313, 20141, "KeystoneH"}};

struct KeystoneTest : testing::Test, SetupPage {
  KeystoneTest()
      : SetupPage(42, [](RecordingChannel& channel) {
          channel.Answer("GetKeystoneV", 100);
          channel.Answer("GetKeystoneH", 140);
        }) {}
};

TEST_F(KeystoneTest, ButtonsStepFromTheProjectorsValue) {
  for (const KeystoneCase& row : kKeystones) {
    SCOPED_TRACE(row.axis);
    const std::string axis = row.axis;
    projector.Answer("Increment" + axis, 131);
    driver.Click(row.plus);
    EXPECT_EQ(projector.Take(), (Strings{"Get" + axis, "Increment" + axis}));
    EXPECT_EQ(driver.Text(row.field), QStringLiteral("3"));
    EXPECT_EQ(driver.SliderAt(row.slider), 3);
    projector.Refuse("Decrement" + axis);
    driver.Click(row.minus);
    EXPECT_EQ(projector.Take(), (Strings{"Get" + axis, "Decrement" + axis}));
    projector.Refuse("Get" + axis);
    driver.Click(row.minus);
    EXPECT_EQ(projector.Take(), Strings{"Get" + axis});
    EXPECT_EQ(driver.Text(row.field), QStringLiteral("3"));
    EXPECT_EQ(driver.SliderAt(row.slider), 3);
  }
}

TEST_F(KeystoneTest, ARefusedHorizontalMoveGoesToTheVerticalMemory) {
  projector.Refuse("SetKeystoneH");
  driver.Press(20311, Qt::Key_Left);
  EXPECT_EQ(projector.Take(), Strings{"SetKeystoneH 139"});
  EXPECT_EQ(driver.SliderAt(20311), 100);
  EXPECT_EQ(driver.Text(20141), QStringLiteral("12")) << "only the slider moves";
}

TEST_F(KeystoneTest, ReadsAndStepsRememberDeviceValuesAndReleasesPositions) {
  const auto positionAfterRefusal = [this] {
    projector.Refuse("SetKeystoneV");
    driver.Press(20310, Qt::Key_Right);
    projector.Accept("SetKeystoneV");
    return driver.SliderAt(20310);
  };
  EXPECT_EQ(positionAfterRefusal(), 100) << "as read";
  projector.Answer("DecrementKeystoneV", 99);
  driver.Click(20308);
  EXPECT_EQ(positionAfterRefusal(), 99) << "as stepped";
  projector.Take();
  driver.Press(20310, Qt::Key_Home);
  EXPECT_EQ(projector.Take(), Strings{"SetKeystoneV 0"});
  EXPECT_EQ(driver.Text(20314), QStringLiteral("-128"));
  EXPECT_EQ(positionAfterRefusal(), -128) << "as released";
  projector.Answer("GetKeystoneV", 128);
  driver.Click(20328);
  EXPECT_EQ(driver.SliderAt(20310), 0);
  EXPECT_EQ(positionAfterRefusal(), -128) << "a reset is not remembered";
}

TEST_F(KeystoneTest, AutoKeystoneActsAtOnce) {
  MessageBoxes boxes;
  driver.Click(20305);
  EXPECT_EQ(projector.Take(), Strings{"ExecAutoKeyStone"});
  EXPECT_TRUE(boxes.Take().empty());
}

struct VolumeTest : testing::Test, SetupPage {
  VolumeTest()
      : SetupPage(42, [](RecordingChannel& channel) {
          channel.Answer("GetInputSource", 3);
          channel.Answer("GetInputSrcVolume 3", 12);
        }) {}
};

TEST_F(VolumeTest, StepsAndDragsGoToTheCurrentInput) {
  EXPECT_EQ(driver.Text(20142), QStringLiteral("12"));
  EXPECT_EQ(driver.Text(20337), QStringLiteral("3"));
  projector.Answer("GetInputSource", 5);
  projector.Answer("IncrementInputSrcVol 5", 14);
  driver.Click(20319);
  EXPECT_EQ(projector.Take(), (Strings{"GetInputSource", "IncrementInputSrcVol 5"}));
  EXPECT_EQ(driver.Text(20337), QStringLiteral("5"));
  EXPECT_EQ(driver.Text(20142), QStringLiteral("14"));
  projector.Refuse("DecrementInputSrcVol 5");
  driver.Click(20318);
  EXPECT_EQ(projector.Take(), (Strings{"GetInputSource", "DecrementInputSrcVol 5"}));
  EXPECT_EQ(driver.SliderAt(20317), 14);
  driver.Drag(20317, 20);
  EXPECT_EQ(projector.Take(), (Strings{"GetInputSource", "SetVolumeEachSrc 5 20"}));
  EXPECT_EQ(driver.Text(20142), QStringLiteral("20"));
  projector.Refuse("SetVolumeEachSrc 5");
  driver.Drag(20317, 30);
  EXPECT_EQ(driver.SliderAt(20317), 20);
  EXPECT_EQ(driver.Text(20142), QStringLiteral("20"));
}

TEST_F(VolumeTest, WithoutASourceOnlyTheButtonsGoOn) {
  projector.Refuse("GetInputSource");
  driver.Drag(20317, 30);
  EXPECT_EQ(projector.Take(), Strings{"GetInputSource"});
  EXPECT_EQ(driver.SliderAt(20317), 12);
  driver.Click(20318);
  EXPECT_EQ(projector.Take(), (Strings{"GetInputSource", "DecrementInputSrcVol 0"}));
  EXPECT_EQ(driver.Text(20337), QStringLiteral("0"));
  open.Page().InitDisp();
  EXPECT_FALSE(driver.IsEnabled(20317));
  EXPECT_EQ(driver.Text(20142), QString());
  EXPECT_EQ(driver.Text(20337), QString());
}

struct ZoomShiftTest : testing::Test, SetupPage {
  ZoomShiftTest()
      : SetupPage(44, [](RecordingChannel& channel) {
          channel.Answer("Get 0x300A", 90);
          channel.Answer("Get 0x300B", 130);
          channel.Answer("Get 0x300C", 120);
        }) {}

  void ExpectBox(int errorNumber) {
    const auto seen = boxes.Take();
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].text, CatalogString(2201, errorNumber));
    EXPECT_EQ(seen[0].icon, QMessageBox::Critical);
  }

  MessageBoxes boxes;
};

TEST_F(ZoomShiftTest, ZoomButtonsStepInsideTheRange) {
  projector.Answer("Get 0x300A", 80);
  driver.Click(20331);
  EXPECT_EQ(projector.Take(), (Strings{"Dec 0x300A", "Get 0x300A"}));
  EXPECT_EQ(driver.Text(20143), QStringLiteral("80"));
  driver.Click(20331);
  EXPECT_EQ(projector.Take(), Strings{});
  driver.Drag(20332, 100);
  EXPECT_EQ(projector.Take(), Strings{"Set 0x300A 100"});
  driver.Click(20333);
  EXPECT_EQ(projector.Take(), Strings{});
  projector.Refuse("Dec 0x300A");
  driver.Click(20331);
  EXPECT_EQ(projector.Take(), Strings{"Dec 0x300A"});
  ExpectBox(314);
  projector.Refuse("Set 0x300A");
  driver.Drag(20332, 85);
  EXPECT_EQ(driver.SliderAt(20332), 100);
  EXPECT_TRUE(boxes.Take().empty()) << "a refused drag stays quiet";
  projector.Answer("Get 0x300A", 90);
  driver.Choose(20327, 1);
  driver.Click(20328);
  EXPECT_EQ(driver.SliderAt(20332), 90);
  driver.Drag(20332, 85);
  EXPECT_EQ(driver.SliderAt(20332), 100) << "a reset is not remembered";
}

TEST_F(ZoomShiftTest, OnlyTheZoomButtonsInsistOnTheResultOne) {
  for (const char* key : {"Get 0x300A", "Set 0x300A", "Inc 0x300A", "Get 0x300B", "Inc 0x300B"}) {
    projector.AnswerResult(key, 2);
  }
  projector.Answer("Get 0x300A", 95);
  open.Page().InitDisp();
  EXPECT_TRUE(driver.IsEnabled(20332));
  EXPECT_EQ(driver.Text(20143), QStringLiteral("95"));
  driver.Drag(20332, 91);
  EXPECT_EQ(driver.Text(20143), QStringLiteral("91"));
  projector.Take();

  driver.Click(20333);
  EXPECT_EQ(projector.Take(), Strings{"Inc 0x300A"});
  ExpectBox(314);
  projector.AnswerResult("Inc 0x300A", 1);
  driver.Click(20333);
  EXPECT_EQ(projector.Take(), (Strings{"Inc 0x300A", "Get 0x300A"}));
  EXPECT_EQ(driver.Text(20143), QStringLiteral("91")) << "a read-back with another result";

  projector.Answer("Get 0x300B", 131);
  driver.Click(20335);
  EXPECT_EQ(projector.Take(), (Strings{"Inc 0x300B", "Get 0x300B"}));
  EXPECT_EQ(driver.Text(20144), QStringLiteral("3"));
  EXPECT_TRUE(boxes.Take().empty());
}

TEST_F(ZoomShiftTest, ArrowsStepTheirAxisAndTellRefusals) {
  struct Arrow {
    int button;
    const char* step;
    const char* code;
    int field;
    const char* name;
  };
  for (const Arrow& arrow : {Arrow{20335, "Inc ", "0x300B", 20144, "D-Shift V ↑"},
                             Arrow{20336, "Dec ", "0x300B", 20144, "D-Shift V ↓"},
                             Arrow{20334, "Dec ", "0x300C", 20145, "D-Shift H ←"},
                             Arrow{20350, "Inc ", "0x300C", 20145, "D-Shift H →"}}) {
    SCOPED_TRACE(arrow.name);
    const std::string step = std::string(arrow.step) + arrow.code;
    const std::string read = std::string("Get ") + arrow.code;
    const auto& button = driver.Item<QAbstractButton>(arrow.button);
    EXPECT_EQ(button.accessibleName(), QString::fromUtf8(arrow.name));
    EXPECT_EQ(button.text(), QString());
    EXPECT_FALSE(button.icon().isNull());
    projector.Answer(read, 118);
    driver.Click(arrow.button);
    EXPECT_EQ(projector.Take(), (Strings{step, read}));
    EXPECT_EQ(driver.Text(arrow.field), QStringLiteral("-10"));
    projector.Refuse(step);
    driver.Click(arrow.button);
    EXPECT_EQ(projector.Take(), Strings{step});
    ExpectBox(315);
  }
}

TEST(ArrowBitmapTest, PointsWhereItsNumberSays) {
  const auto ink = [](int number, const QRect& part) {
    const QImage image = ArrowBitmap(number).pixmap(40, 40).toImage().scaled(40, 40);
    int sum = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
      for (int x = part.left(); x <= part.right(); ++x) sum += qAlpha(image.pixel(x, y));
    }
    return sum;
  };
  const QRect top(0, 0, 40, 20), bottom(0, 20, 40, 20), left(0, 0, 20, 40), right(20, 0, 20, 40);
  // The half with the tip has less to fill.
  EXPECT_LT(2 * ink(BitmapId::ArrowUp, top), ink(BitmapId::ArrowUp, bottom));
  EXPECT_LT(2 * ink(BitmapId::ArrowDown, bottom), ink(BitmapId::ArrowDown, top));
  EXPECT_LT(2 * ink(BitmapId::ArrowLeft, left), ink(BitmapId::ArrowLeft, right));
  EXPECT_LT(2 * ink(BitmapId::ArrowRight, right), ink(BitmapId::ArrowRight, left));
  EXPECT_GT(ink(BitmapId::ArrowUp, top), 0);
  EXPECT_TRUE(ArrowBitmap(1).isNull());
}

TEST(SetupResetTest, EachModelsListResetsWhatItNames) {
  struct Reset {
    QString text;
    std::string execute;
    std::string read;
    int field;
    int slider;
  };
  const Reset keystoneV{"Keystone V", "ExecKeyStoneVReset", "GetKeystoneV", 20314, 20310};
  const Reset keystoneH{"Keystone H", "ExecKeyStoneHReset", "GetKeystoneH", 20141, 20311};
  const Reset zoom{"D-Zoom", "ExecDZoomReset", "Get 0x300A", 20143, 20332};
  const Reset shiftV{"D-Shift V", "ExecDShiftVReset", "Get 0x300B", 20144, 0};
  const Reset shiftH{"D-Shift H", "ExecDShiftHReset", "Get 0x300C", 20145, 0};
  struct Case {
    int code;
    std::vector<Reset> resets;
  };
  for (const Case& model : {Case{42, {keystoneV, keystoneH}}, Case{32, {keystoneV}},
                            Case{44, {keystoneV, zoom, shiftV, shiftH}}, Case{35, {}}}) {
    SCOPED_TRACE(model.code);
    SetupPage page(model.code);
    MessageBoxes boxes;
    QStringList texts;
    for (const Reset& reset : model.resets) texts << reset.text;
    EXPECT_EQ(page.driver.Entries(20327), texts);
    EXPECT_EQ(page.driver.Selected(20327), texts.isEmpty() ? -1 : 0);
    if (texts.isEmpty()) page.driver.Click(20328);
    EXPECT_EQ(page.projector.Take(), Strings{});
    for (std::size_t i = 0; i < model.resets.size(); ++i) {
      const Reset& reset = model.resets[i];
      SCOPED_TRACE(reset.execute);
      const bool isZoom = reset.read == zoom.read;
      page.driver.Choose(20327, static_cast<int>(i));
      EXPECT_EQ(page.projector.Take(), Strings{}) << "choosing does not reset";
      page.projector.Answer(reset.read, isZoom ? 97 : 133);
      page.driver.Click(20328);
      EXPECT_EQ(page.projector.Take(), (Strings{reset.execute, reset.read}));
      EXPECT_EQ(page.driver.Text(reset.field), isZoom ? "97" : "5");
      if (reset.slider != 0) {
        EXPECT_EQ(page.driver.SliderAt(reset.slider), isZoom ? 97 : 5);
      }
      page.projector.Refuse(reset.execute);
      page.driver.Click(20328);
      EXPECT_EQ(page.projector.Take(), Strings{reset.execute});
      EXPECT_TRUE(boxes.Take().empty());
    }
  }
}

}  // namespace
