#include <array>
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
        .value = value};
  }

  bool accepted = true;
  std::int16_t value = 77;
  PjtCommand last{};
};

class CPjtInterfaceTest : public testing::Test {
 protected:
  CPjtInterfaceTest() { pjt_.SetChannel(channel_); }

  /// Refuses from now on, be it by the projector or for want of a channel.
  void Refuse(bool withoutChannel) {
    channel_->accepted = false;
    if (withoutChannel) pjt_.SetChannel(nullptr);
  }

  std::shared_ptr<OneReply> channel_ = std::make_shared<OneReply>();
  CPjtInterface pjt_;
};

TEST_F(CPjtInterfaceTest, EveryFormBuildsItsCommand) {
  short value = 5;
  unsigned short word = 0;
  const auto sent = [this] { return channel_->last; };

  EXPECT_EQ(pjt_.ExecTintReset(), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::ExecTintReset}));
  EXPECT_NE(pjt_.ExecColorTempGainRReset(), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::ExecColorTempGainRReset}));
  EXPECT_NE(pjt_.ExecUserGammaPReset(8), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::ExecUserGammaPReset, 0, 8}));
  pjt_.SetPowerOff();
  EXPECT_EQ(sent(), (PjtCommand{Op::SetPowerOff}));
  EXPECT_NE(pjt_.GetKeystoneV(&value), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::GetKeystoneV}));
  EXPECT_EQ(value, 77);
  EXPECT_NE(pjt_.SetColor(140), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::SetColor, 0, 140}));
  EXPECT_NE(pjt_.SetBrightness(-3), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::SetBrightness, 0, -3}));
  EXPECT_NE(pjt_.SetAudioM1D(32, 1), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::SetAudioM1D, 0, 32, 1}));
  pjt_.SetGamma(2);
  EXPECT_EQ(sent(), (PjtCommand{Op::SetGamma, 0, 2}));
  pjt_.SetVideoNR(2, 1);
  EXPECT_EQ(sent(), (PjtCommand{Op::SetVideoNR, 0, 2, 1}));
  EXPECT_NE(pjt_.GetVideoFormat(1, &value), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::GetVideoFormat, 0, 1}));
  EXPECT_NE(pjt_.SetVolumeEachSrc(15, 9), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::SetVolumeEachSrc, 0, 15, 9}));
  EXPECT_NE(pjt_.SetInputSrcBass(3, 130), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::SetInputSrcBass, 0, 3, 130}));
  EXPECT_EQ(pjt_.GetColorTempOffsetB(), 77);
  EXPECT_EQ(pjt_.GetUserGammaPoint(3), 77);
  EXPECT_EQ(sent(), (PjtCommand{Op::GetUserGammaPoint, 0, 3}));
  EXPECT_EQ(pjt_.DecrementColorTempGain(2, -7), 77);
  EXPECT_EQ(sent(), (PjtCommand{Op::DecrementColorTempGain, 0, 2, -7}));
  value = 30;
  EXPECT_NE(pjt_.IncrementAutoPowerOff(&value), 0);
  EXPECT_EQ(sent(), (PjtCommand{Op::IncrementAutoPowerOff, 0, 30}));
  EXPECT_EQ(value, 77);
  EXPECT_EQ(pjt_.DecrementAutoPowerOff(short{30}), 77);
  EXPECT_EQ(sent(), (PjtCommand{Op::DecrementAutoPowerOff, 0, 30}));

  EXPECT_EQ(pjt_.Set(0x2003, 0xFFFE, &pjt_), 1);
  EXPECT_EQ(sent(), (PjtCommand{Op::Set, 0x2003, -2}));
  channel_->value = -2;
  EXPECT_EQ(pjt_.Get(0x2003, 0, &pjt_, &word), 1);
  EXPECT_EQ(word, 0xFFFE);
  EXPECT_EQ(pjt_.Inc(0x2003, 0, &pjt_), 1);
  EXPECT_EQ(sent(), (PjtCommand{Op::Inc, 0x2003}));
}

TEST_F(CPjtInterfaceTest, ARefusalLeavesTheCallersValuesAlone) {
  for (const bool withoutChannel : {false, true}) {
    Refuse(withoutChannel);
    short value = 5;
    unsigned short word = 6;
    EXPECT_NE(pjt_.SetPowerOn(), 0);
    EXPECT_EQ(pjt_.ExecColorTempOffsetGReset(), 0);
    EXPECT_EQ(pjt_.GetMirror(&value), 0);
    EXPECT_EQ(pjt_.DecrementKeystoneH(&value), 0);
    EXPECT_EQ(pjt_.GetSRSWOW(3, &value), 0);
    EXPECT_EQ(pjt_.IncrementInputSrcTreb(3, &value), 0);
    EXPECT_EQ(value, 5);
    EXPECT_NE(pjt_.Get(0x2003, 0, &pjt_, &word), 1);
    EXPECT_EQ(word, 6);
    EXPECT_NE(pjt_.Dec(0x2003, 0, &pjt_), 1);
    EXPECT_EQ(pjt_.SetMyButton1(4), 0);
    EXPECT_EQ(pjt_.GetColorTempGainR(), 0);
    EXPECT_EQ(pjt_.IncrementColorTempOffset(1, -9), -9);
    EXPECT_EQ(pjt_.IncrementAutoPowerOff(short{12}), 12);
  }
}

TEST_F(CPjtInterfaceTest, NoValueIsWrittenThroughANullPointer) {
  EXPECT_EQ(pjt_.GetMirror(nullptr), 0);
  EXPECT_EQ(pjt_.IncrementKeystoneV(nullptr), 0);
  EXPECT_NE(pjt_.Get(0x2003, 0, &pjt_, nullptr), 1);
}

TEST_F(CPjtInterfaceTest, ConnectionTextsAreBoundedAndMayBeAbsent) {
  std::array<char, 70> unterminated{};
  unterminated.fill('x');
  pjt_.CopyData(1, 2, 23, unterminated.data(), nullptr);
  EXPECT_EQ(pjt_.ConnectionText1(), std::string(64, 'x'));
  EXPECT_EQ(pjt_.ConnectionText2(), "");
  EXPECT_EQ(pjt_.Network().Address, pjt_.ConnectionText1());
  EXPECT_EQ(pjt_.Network().Port, 23);

  pjt_.CopyData(0, 2, 19200, "", "");
  EXPECT_EQ(pjt_.ConnectionKind(), 0);
  EXPECT_EQ(pjt_.ConnectionNumber(), 2);
  EXPECT_EQ(pjt_.Serial().BaudRate, 19200);
  EXPECT_EQ(pjt_.Network(), CSocketCtrl());
}

TEST_F(CPjtInterfaceTest, ListsAreKeptWithinTheirCapacity) {
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
