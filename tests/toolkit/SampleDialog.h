#pragma once

#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/ResourceModule.h"

using namespace tmpl;
using enum RowPlace;

inline constexpr const char* kEntries[] = {"Zero", "One", "Two"};
inline constexpr RowTemplate kRows[] = {
    SliderRow(Left, Label(1, "Level:"), 2, {3, 4, 5, 6}),
    Row(Left, Label(7, "Mode:"), Colon(8), Combo(9, kEntries), Button(10, "Do")),
    Row(Left, Label(11, "Last:"), Colon(12), Combo(13, kEntries), Check(15, "Once")),
    Row(Bottom, Close(14, "Close")),
};
inline constexpr DialogTemplate kTemplate{
    .number = 900, .caption = "Sample", .rulerHeight = 20, .rows = kRows};
inline constexpr const char* kLongEntries[] = {"An entry that is longer than lists become"};
inline constexpr RowTemplate kKinds[] = {
    SliderRow(Left, Label(1, "Level:"), 2, {3, 4, 5, 6}, Button(7, "Reset")),
    Row(Left, Label(8, "Move"), Colon(9), Text(10, "V"), Arrow(11, "←"), Arrow(12, "→")),
    Row(Left, Text(13, "H"), Minus(14), Field(15), Plus(16)),
    Row(Left, Label(17, "State"), Colon(18), Text(19, "Good")),
    Row(Right, Label(20, "Mode"), Colon(21), Combo(22, kLongEntries),
        Button(23, "A button that is longer than most")),
    Row(Right, Label(24, "Longer &caption"), Colon(25), Check(26, "Once")),
    Row(Right, Label(27, "Absent, and longer than all"), Colon(28), Combo(29, kEntries)),
    Row(Bottom, Close(30, "End")),
};
inline constexpr DialogTemplate kKindsTemplate{
    .number = 902, .caption = "Kinds", .width = 800, .rows = kKinds};
inline constexpr const DialogTemplate* kTemplates[] = {&kTemplate, &kKindsTemplate};
inline constexpr ResourceModule kModule{kTemplates};

struct SampleDialog : CDialog {
  using CDialog::IsLeft;
  explicit SampleDialog(CWnd* owner = nullptr) : CDialog(900, owner) {}
  const NotificationMap& Notifications() const override {
    static const NotificationMap map{Clicked(10, &SampleDialog::OnDo),
                                     SelChange(9, &SampleDialog::OnMode), Passive(13),
                                     HScroll(&SampleDialog::OnScroll)};
    return map;
  }
  void OnDo() {
    ++presses;
    if (whenDone) whenDone();
  }
  void OnMode() { ++choices; }
  void OnScroll(CSliderCtrl& slider) {
    scrolls.push_back(slider.value());
    if (whenDone) whenDone();
  }
  void OnDestroy() override { ++destroyed; }

  void Open() {
    ASSERT_TRUE(Create());
    Activate(*this);
  }

  int presses = 0, choices = 0, destroyed = 0;
  std::vector<int> scrolls;
  std::function<void()> whenDone;
};

struct DialogTest : testing::Test {
  DialogTest() {
    ResourceChain::Register(kModule);
    dialog.Open();
    dialog.Item<CSliderCtrl>(4).SetRange(-10, 10, 2);
  }
  ~DialogTest() override { ResourceChain::Unregister(kModule); }

  SampleDialog dialog;
  DialogDriver driver{dialog};
};
