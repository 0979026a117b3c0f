#include <thread>

#include <gtest/gtest.h>

#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"
#include "tests/device/Replies.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Kind = Fault::Kind;
using Op = PjtOperation;

class FaultChannelTest : public testing::Test {
 protected:
  std::shared_ptr<SimulatedProjector> projector_ = std::make_shared<SimulatedProjector>();
  FaultChannel channel_{projector_, 1min};
};

TEST_F(FaultChannelTest, TheMostSpecificFaultAppliesAndLateAnswersArrive) {
  const std::vector commands{Do(Op::SetBrightness, 130), Do(Op::ExecTintReset), Get(0x2004),
                             Do(Op::GetColorTempGainR),  Set(0x2002, 1),        Get(0x2002)};
  const Fault refuse{.kind = Kind::Refuse};
  channel_.SetFault(refuse);
  EXPECT_EQ(Replies(channel_, commands), "- - - - - -");
  EXPECT_EQ(projector_->Value(SettingId::Brightness), 128);
  channel_.SetFault(Op::SetBrightness, {.kind = Kind::Late, .delay = 40ms});
  const auto start = Clock::now();
  EXPECT_EQ(Replies(channel_, commands), "130 - - - - -");
  EXPECT_GE(Clock::now() - start, 40ms);
  channel_.SetFault({.kind = Kind::FailRead});
  channel_.SetFault(Op::SetBrightness, refuse);
  EXPECT_EQ(Replies(channel_, commands), "- 128 - - 1 -");
  channel_.SetFault({});
  channel_.SetFault(std::uint16_t{0x2002}, refuse);
  EXPECT_EQ(Replies(channel_, commands), "- 128 128 128 - -");
  channel_.SetFault(Op::SetBrightness, {});
  EXPECT_EQ(Replies(channel_, commands), "130 128 128 128 - -");
  channel_.Clear();
  EXPECT_EQ(Replies(channel_, commands), "130 128 128 128 1 1");
}

TEST_F(FaultChannelTest, ADropOutEndsWhenTheFaultIsCleared) {
  channel_.SetFault(Op::GetMirror, {.kind = Kind::DropOut});
  std::thread clearer([this] {
    std::this_thread::sleep_for(30ms);
    channel_.SetFault(Op::GetSpeaker,
                      {.kind = Kind::Refuse});  // a fault of another command must not end the wait
    std::this_thread::sleep_for(30ms);
    channel_.Clear();
  });
  const auto start = Clock::now();
  EXPECT_FALSE(channel_.Execute({Op::GetMirror}).answered);
  const auto waited = Clock::now() - start;
  clearer.join();
  EXPECT_GE(waited, 55ms);
  EXPECT_LT(waited, 30s);
  EXPECT_TRUE(channel_.Execute({Op::GetMirror}).answered);

  FaultChannel bounded(projector_, 20ms);
  bounded.SetFault({.kind = Kind::DropOut});
  EXPECT_FALSE(bounded.Execute({Op::GetMirror}).answered);
}

}  // namespace
