#include <thread>

#include <gtest/gtest.h>

#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Kind = Fault::Kind;
using Op = PjtOperation;

class FaultChannelTest : public testing::Test {
 protected:
  bool Accepts(const PjtCommand& command) {
    return IsSuccess(command.operation, channel_.Execute(command).result);
  }

  std::shared_ptr<SimulatedProjector> projector_ = std::make_shared<SimulatedProjector>();
  FaultChannel channel_{projector_, 5s};
};

TEST_F(FaultChannelTest, TheNarrowestFaultCounts) {
  const PjtCommand brightness{Op::SetBrightness, 0, 130};
  channel_.SetFault({.kind = Kind::Refuse});
  EXPECT_FALSE(Accepts(brightness));
  EXPECT_FALSE(Accepts({Op::ExecTintReset})) << "refused as the family says it";
  EXPECT_EQ(projector_->Value(SettingId::Brightness), 128);
  channel_.SetFault({});
  channel_.SetFault(std::uint16_t{0x2003}, {.kind = Kind::Refuse});
  EXPECT_FALSE(Accepts({Op::Get, 0x2003}));
  EXPECT_TRUE(Accepts({Op::Get, 0x2004}));
  EXPECT_TRUE(Accepts(brightness));
  channel_.SetFault(Op::SetBrightness, {.kind = Kind::Refuse});
  EXPECT_FALSE(Accepts(brightness));
  channel_.SetFault(Op::SetBrightness, {});
  EXPECT_TRUE(Accepts(brightness));
}

TEST_F(FaultChannelTest, FailingReadsLeaveWritesAloneAndALateAnswerIsAnAnswer) {
  channel_.SetFault({.kind = Kind::FailRead});
  EXPECT_FALSE(Accepts({Op::Get, 0x2003}));
  EXPECT_FALSE(Accepts({Op::GetColorTempGainR}));
  EXPECT_TRUE(Accepts({Op::SetMirror, 0, 2}));
  EXPECT_TRUE(Accepts({Op::Inc, 0x2003}));
  channel_.SetFault({.kind = Kind::Late, .delay = 40ms});
  const auto start = Clock::now();
  EXPECT_TRUE(Accepts({Op::GetMirror}));
  EXPECT_GE(Clock::now() - start, 40ms);
}

TEST_F(FaultChannelTest, ADropOutEndsWhenItIsCleared) {
  channel_.SetFault(Op::GetMirror, {.kind = Kind::DropOut});
  std::thread clearer([this] {
    std::this_thread::sleep_for(30ms);
    channel_.SetFault(Op::GetSpeaker, {.kind = Kind::Refuse});  // another's fault releases nobody
    std::this_thread::sleep_for(30ms);
    channel_.Clear();
  });
  const auto start = Clock::now();
  EXPECT_FALSE(channel_.Execute({Op::GetMirror}).answered);
  const auto waited = Clock::now() - start;
  clearer.join();
  EXPECT_GE(waited, 55ms);
  EXPECT_LT(waited, 4s);
  EXPECT_TRUE(Accepts({Op::GetMirror}));

  FaultChannel bounded(projector_, 20ms);
  bounded.SetFault({.kind = Kind::DropOut});
  EXPECT_FALSE(bounded.Execute({Op::GetMirror}).answered);
}

}  // namespace
