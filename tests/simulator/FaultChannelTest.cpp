#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Kind = Fault::Kind;
using Op = PjtOperation;

constexpr PjtCommand kCommands[] = {{Op::SetBrightness, 0, 130}, {Op::ExecTintReset},
                                    {Op::GetColorTempGainR},     {Op::Get, 0x2003},
                                    {Op::Get, 0x2004},           {Op::Inc, 0x2004}};

class FaultChannelTest : public testing::Test {
 protected:
  /// A sign for each of the commands: whether it is accepted.
  std::string Accepted() {
    std::string signs;
    for (const PjtCommand& command : kCommands) {
      const int result = channel_.Execute(command).result;
      signs += IsSuccess(command.operation, result) ? '+' : '-';
    }
    return signs;
  }

  std::shared_ptr<SimulatedProjector> projector_ = std::make_shared<SimulatedProjector>();
  FaultChannel channel_{projector_, 5s};
};

TEST_F(FaultChannelTest, TheNarrowestFaultCountsAndALateAnswerIsAnAnswer) {
  const Fault refuse{.kind = Kind::Refuse};
  channel_.SetFault(refuse);
  EXPECT_EQ(Accepted(), "------");
  EXPECT_EQ(projector_->Value(SettingId::Brightness), 128);
  channel_.SetFault({.kind = Kind::FailRead});
  EXPECT_EQ(Accepted(), "++---+");
  channel_.SetFault({});
  channel_.SetFault(std::uint16_t{0x2003}, refuse);
  EXPECT_EQ(Accepted(), "+++-++");
  channel_.SetFault(Op::SetBrightness, refuse);
  EXPECT_EQ(Accepted(), "-++-++");
  channel_.SetFault(Op::SetBrightness, {.kind = Kind::Late, .delay = 40ms});
  const auto start = Clock::now();
  EXPECT_EQ(Accepted(), "+++-++");
  EXPECT_GE(Clock::now() - start, 40ms);
  channel_.SetFault(Op::SetBrightness, {});
  EXPECT_EQ(Accepted(), "+++-++");
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
  EXPECT_TRUE(channel_.Execute({Op::GetMirror}).answered);

  FaultChannel bounded(projector_, 20ms);
  bounded.SetFault({.kind = Kind::DropOut});
  EXPECT_FALSE(bounded.Execute({Op::GetMirror}).answered);
}

}  // namespace
