#include <array>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include "device/CPjtInterface.h"
#include "device/LoggingChannel.h"
#include "device/ModelData.h"

namespace {

using Op = PjtOperation;

/// Answers every command alike and keeps the last one.
class OneReply final : public ProjectorChannel {
 public:
  PjtReply Execute(const PjtCommand& command) override {
    last = command;
    return {
        .result = accepted ? AcceptedResult(command.operation) : RefusedResult(command.operation),
        .value = -2};
  }

  bool accepted = true;
  PjtCommand last{};
};

class CPjtInterfaceTest : public testing::Test {
 protected:
  CPjtInterfaceTest() { pjt_.SetChannel(channel_); }

  std::shared_ptr<OneReply> channel_ = std::make_shared<OneReply>();
  CPjtInterface pjt_;
};

TEST_F(CPjtInterfaceTest, EveryFormBuildsItsCommandAndTakesItsReply) {
  CPjtInterface& p = pjt_;
  const short step = 12;
  short got = 30;
  unsigned short word = 30;
  struct Form {
    std::function<int()> call;
    PjtCommand command;
    int accepted;
    int refused;
    int value = 30;  ///< What an accepted one leaves behind the pointer.
  };
  const Form forms[] = {
      {[&] { return p.ExecTintReset(); }, {Op::ExecTintReset}, 0, -1},
      {[&] { return p.ExecColorTempGainRReset(); }, {Op::ExecColorTempGainRReset}, 1, 0},
      {[&] { return p.ExecUserGammaPReset(8); }, {Op::ExecUserGammaPReset, 0, 8}, 1, 0},
      {[&] { return p.SetPowerOff(), 0; }, {Op::SetPowerOff}, 0, 0},
      {[&] { return p.GetKeystoneV(&got); }, {Op::GetKeystoneV}, 1, 0, -2},
      {[&] { return p.SetColor(140); }, {Op::SetColor, 0, 140}, 1, 0},
      {[&] { return p.SetMyButton1(-3); }, {Op::SetMyButton1, 0, -3}, 1, 0},
      {[&] { return p.SetAudioM1D(32, 1); }, {Op::SetAudioM1D, 0, 32, 1}, 1, 0},
      {[&] { return p.SetGamma(2), 0; }, {Op::SetGamma, 0, 2}, 0, 0},
      {[&] { return p.SetVideoNR(2, 1), 0; }, {Op::SetVideoNR, 0, 2, 1}, 0, 0},
      {[&] { return p.IncrementKeystoneV(&got); }, {Op::IncrementKeystoneV, 0, 30}, 1, 0, -2},
      {[&] { return p.GetVideoFormat(1, &got); }, {Op::GetVideoFormat, 0, 1}, 1, 0, -2},
      {[&] { return p.IncrementInputSrcVol(3, &got); }, {Op::IncrementInputSrcVol, 0, 3}, 1, 0, -2},
      {[&] { return p.SetVolumeEachSrc(15, 9); }, {Op::SetVolumeEachSrc, 0, 15, 9}, 1, 0},
      {[&] { return p.SetInputSrcBass(3, 130); }, {Op::SetInputSrcBass, 0, 3, 130}, 1, 0},
      {[&] { return p.GetColorTempOffsetB(); }, {Op::GetColorTempOffsetB}, -2, 0},
      {[&] { return p.GetUserGammaPoint(3); }, {Op::GetUserGammaPoint, 0, 3}, -2, 0},
      {[&] { return p.DecrementColorTempGain(2, 7); },
       {Op::DecrementColorTempGain, 0, 2, 7},
       -2,
       7},
      {[&] { return p.IncrementAutoPowerOff(step); }, {Op::IncrementAutoPowerOff, 0, 12}, -2, 12},
      {[&] { return p.DecrementAutoPowerOff(step); }, {Op::DecrementAutoPowerOff, 0, 12}, -2, 12},
      {[&] { return p.Get(0x2003, 0, &p, &word); }, {Op::Get, 0x2003}, 1, 0, 0xFFFE},
      {[&] { return p.Set(0x2003, 0xFFFE, &p); }, {Op::Set, 0x2003, -2}, 1, 0},
      {[&] { return p.Inc(0x2003, 0, &p); }, {Op::Inc, 0x2003}, 1, 0},
      {[&] { return p.Dec(0x2003, 0, &p); }, {Op::Dec, 0x2003}, 1, 0},
  };
  for (const Form& form : forms) {
    SCOPED_TRACE(OperationName(form.command.operation));
    const bool isGet = form.command.operation == Op::Get;
    const auto expectCall = [&](int result, int left) {
      got = 30;
      word = 30;
      EXPECT_EQ(form.call(), result);
      EXPECT_EQ(isGet ? int{word} : int{got}, left);
    };
    channel_->accepted = true;
    pjt_.SetChannel(channel_);
    expectCall(form.accepted, form.value);
    EXPECT_EQ(channel_->last, form.command);
    channel_->accepted = false;
    expectCall(form.refused, 30);
    pjt_.SetChannel(nullptr);
    expectCall(form.refused, 30);
  }
}

TEST_F(CPjtInterfaceTest, WhatHostsHandOverIsBoundedAndMayBeAbsent) {
  EXPECT_EQ(pjt_.GetMirror(nullptr), 0);
  EXPECT_EQ(pjt_.IncrementKeystoneV(nullptr), 0);
  EXPECT_NE(pjt_.Get(0x2003, 0, &pjt_, nullptr), 1);

  std::array<char, 70> unterminated{};
  unterminated.fill('x');
  pjt_.CopyData(1, 2, 23, unterminated.data(), nullptr);
  EXPECT_EQ(pjt_.ConnectionText1(), std::string(64, 'x'));
  EXPECT_EQ(pjt_.ConnectionText2(), "");
  EXPECT_EQ(pjt_.Network().Address, pjt_.ConnectionText1());
  EXPECT_EQ(pjt_.Network().Port, 23);

  std::array<int, 40> values{};
  values[31] = 9;
  EXPECT_EQ(pjt_.CopyGammaData(40, values.data()), 32);
  EXPECT_EQ(pjt_.GammaValues().back(), 9);
  EXPECT_EQ(pjt_.CopyGammaData(-1, values.data()), 0);
  EXPECT_TRUE(pjt_.GammaValues().empty());
  EXPECT_EQ(pjt_.CopyAspectData(3, nullptr), 0);
}

TEST_F(CPjtInterfaceTest, CopiesShareTheChannelAndKeepTheirOwnParameters) {
  pjt_.CopyData(1, 0, 0, "192.0.2.7", "");
  CPjtInterface copy(pjt_);
  copy.CopyData(0, 3, 9600, "", "");
  copy.SetColor(1);
  EXPECT_EQ(channel_->last, (PjtCommand{Op::SetColor, 0, 1}));
  EXPECT_EQ(copy.ConnectionNumber(), 3);
  EXPECT_EQ(copy.Serial().BaudRate, 9600);
  EXPECT_EQ(copy.Network(), CSocketCtrl());
  EXPECT_EQ(pjt_.ConnectionText1(), "192.0.2.7");
  copy = pjt_;
  EXPECT_EQ(copy.Network().Address, "192.0.2.7");
}

TEST(PjtOperationTest, EveryOperationIsFoundByItsName) {
  for (std::size_t i = 0; i < kOperationCount; ++i) {
    const auto operation = static_cast<Op>(i);
    EXPECT_EQ(OperationByName(OperationName(operation)), operation);
    EXPECT_TRUE(IsSuccess(operation, AcceptedResult(operation)));
    EXPECT_FALSE(IsSuccess(operation, RefusedResult(operation)));
  }
  EXPECT_FALSE(OperationByName("SetBrightnes"));
  EXPECT_FALSE(IsSuccess(Op::Set, 2)) << "only 1 is success of a generic operation";
  EXPECT_TRUE(IsSuccess(Op::SetColor, -1));
}

TEST(FormatCommandTest, SaysWhatWasAskedAndWhatCameBack) {
  const PjtReply read{.result = 1, .value = -128};
  const PjtReply refused{.result = 0};
  const PjtReply silent{.result = 0, .answered = false};
  EXPECT_EQ(FormatCommand({Op::SetBrightness, 0, 140}), "SetBrightness(140)");
  EXPECT_EQ(FormatCommand({Op::GetSRSWOW, 0, 3}, &read), "GetSRSWOW(3) = -128");
  EXPECT_EQ(FormatCommand({Op::Get, 0x2003}, &read), "Get 0x2003 = 65408");
  EXPECT_EQ(FormatCommand({Op::Set, 0x3304, 0x10}, &refused), "Set 0x3304 (0x10) refused");
  EXPECT_EQ(FormatCommand({Op::ExecTintReset}, &silent), "ExecTintReset() no answer");
  EXPECT_EQ(FormatCommand({Op::SetVideoNR, 0, 1, 1}, &read), "SetVideoNR(1, 1)");
}

}  // namespace
