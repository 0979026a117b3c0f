// What the pop-ups do beside their rows.

#include <tuple>

#include <QTest>
#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"

namespace {

using Strings = std::vector<std::string>;

std::string Hex(int code) { return "0x" + QString::number(code, 16).toUpper().toStdString(); }

// Over a dialog whose sliders go further than the buttons, with all of them in the middle.
struct OpenPopUp : OpenDialog {
  explicit OpenPopUp(PopUp kind, int code = 30, bool hideResets = false)
      : OpenDialog(Wide(code), 0, Centred), popUp(MakePopUp(kind, Dialog(), hideResets)) {
    Open(*popUp);
    EXPECT_TRUE(QTest::qWaitForWindowActive(popUp.get()));
  }
  static CModelInfo2 Wide(int code) {
    CModelInfo2 model = MakeModel(5, code);
    for (std::size_t i = 0; i < RangeIndex::Count; ++i) model.RangeText(i) = "94,162";
    return model;
  }
  static void Centred(RecordingChannel& projector) {
    for (int code = 0x3090; code <= 0x30B7; ++code) projector.Answer("Get " + Hex(code), 128);
  }

  Strings Click(int id) {
    projector.Take();
    driver.Click(id);
    return projector.Take();
  }

  // Shown is 5, and stays what a step goes on from. A value below the lowest is not shown.
  void ExpectReset(int button, int field, const std::string& reset, const std::string& get,
                   int lowest) {
    for (const auto& [value, shown] : {std::pair{lowest - 1, 5}, {lowest, lowest}}) {
      projector.Answer(get, value + 128);
      EXPECT_EQ(Click(button), (Strings{reset, get}));
      EXPECT_EQ(driver.Text(field), QString::number(shown));
    }
    projector.Refuse(reset);
    EXPECT_EQ(Click(button), Strings{reset});
  }

  void ExpectButtonsStopAt(int end, int minus, int slider, int plus) {
    for (const auto& [button, position, steps] : {std::tuple{plus, end, false},
                                                  {plus, end - 1, true},
                                                  {minus, -end, false},
                                                  {minus, 1 - end, true}}) {
      driver.Drag(slider, position);
      EXPECT_EQ(!Click(button).empty(), steps) << button << " at " << position;
    }
    EXPECT_TRUE(boxes.Take().empty());
  }

  int Top(int id) const { return popUp->GetDlgItem(id)->y(); }
  int Width(int id) const { return popUp->GetDlgItem(id)->width(); }

  RecordingChannel& projector = Projector();
  std::unique_ptr<RowDialog> popUp;
  DialogDriver driver{*popUp};
  MessageBoxes boxes;
};

TEST(GammaPopUp, EveryPointHasItsResetAndButtonsThatStop) {
  OpenPopUp open(PopUp::Gamma);
  for (int point = 0; point < 8; ++point) {
    SCOPED_TRACE(point);
    const int slider = point == 0 ? 20181 : 21023 + point;
    const int minus = point == 7 ? 20182 : 20160 + 3 * point, plus = minus + 1, field = minus + 2;
    const std::string number = ' ' + std::to_string(point + 1);
    open.driver.Drag(slider, 5);
    open.ExpectReset(20336 + point, field, "ExecUserGammaPReset" + number,
                     "GetUserGammaPoint" + number, -16);
    open.ExpectButtonsStopAt(16, minus, slider, plus);
  }
}

// Steps go by channel and shown value, and a refused one is silent.
TEST(ColorTempPopUp, EveryRowHasItsStepsAndItsReset) {
  OpenPopUp open(PopUp::ColorTemp);
  for (int row = 0; row < 6; ++row) {
    const std::string name = row < 3 ? "Gain" : "Offset", channel = name + "RGB"[row % 3];
    const std::string up = "IncrementColorTemp" + name, down = "DecrementColorTemp" + name;
    const std::string at = ' ' + std::to_string(row % 3) + ' ';
    SCOPED_TRACE(channel);
    const int slider = row == 0 ? 20181 : 21023 + row, field = 20194 + row;
    const int minus = 20182 + row, plus = 20188 + row;
    open.driver.Drag(slider, 5);
    open.ExpectReset(20334 + row, field, "ExecColorTemp" + channel + "Reset",
                     "GetColorTemp" + channel, -32);
    open.projector.Answer(up, 6);
    EXPECT_EQ(open.Click(plus), Strings{up + at + "5"});
    EXPECT_EQ(open.driver.Text(field), "6");
    EXPECT_EQ(open.driver.SliderAt(slider), 6);
    open.projector.Refuse(down);
    EXPECT_EQ(open.Click(minus), Strings{down + at + "6"});
    EXPECT_EQ(open.driver.Text(field), "6");
    open.projector.Accept(down);
    open.ExpectButtonsStopAt(32, minus, slider, plus);
  }
}

TEST(GammaPopUp, WithoutResetButtonsIsNarrowerAndCloseStaysInside) {
  const OpenPopUp full(PopUp::Gamma), plain(PopUp::Gamma, 30, true);
  EXPECT_FALSE(plain.popUp->GetDlgItem(20336)->isVisible());
  EXPECT_GE(full.popUp->width() - plain.popUp->width(), full.Width(20336));
  const auto margin = [](const OpenPopUp& open) {
    return open.popUp->width() - open.popUp->GetDlgItem(1)->geometry().right();
  };
  EXPECT_EQ(margin(plain), margin(full));
}

TEST(ServicePopUp, TheHeightFollowsThePresentRows) {
  const OpenPopUp three(PopUp::Service, 32), four(PopUp::Service, 30), five(PopUp::Service, 44);
  const int pitch = four.Top(20379) - four.Top(20378);
  EXPECT_EQ(three.Top(20378), four.Top(20378) - pitch);
  for (const auto& [lower, higher] : {std::pair{&three, &four}, {&four, &five}}) {
    EXPECT_EQ(lower->popUp->height(), higher->popUp->height() - pitch);
    EXPECT_EQ(lower->Top(20380), higher->Top(20380) - pitch) << "Close moves along";
    EXPECT_EQ(lower->popUp->width(), higher->popUp->width());
  }
  EXPECT_EQ(five.popUp->GetDlgItem(20377)->x(), four.popUp->GetDlgItem(20377)->x())
      << "Top keeps its place without Rear";
}

}  // namespace
