#include <memory>
#include <set>
#include <utility>

#include <gtest/gtest.h>

#include "simulator/FaultChannel.h"
#include "simulator/SettingsTable.h"
#include "simulator/SimulatedProjector.h"
#include "tests/device/Replies.h"
#include "tests/support/Soon.h"

namespace {

using namespace std::chrono_literals;
using Id = SettingId;
using Op = PjtOperation;
using Clock = std::chrono::steady_clock;

TEST(SimulatedProjector, ExecutesOrRefusesCommands) {
  SimulatedProjector projector;
  for (const auto& [id, value] : {std::pair(Id::Brightness, 96), {Id::PhaseH, 1}}) {
    projector.SetValue(id, value);
  }
  EXPECT_EQ(Replies(projector, {{Op::Dec, 0x2003},
                                {Op::Dec, 0x2200},
                                Do(Op::IncrementColorTempGain, 1, -28),
                                Do(Op::GetColorTempGainG),
                                Do(Op::ExecAutoAdjust),
                                Get(0x30B4)}),
            "- - 1 129 1344 -")
      << "the ends of a range and of a list, a shown value, all at once, an unknown code";
  EXPECT_EQ(projector.Value(Id::PhaseH), 16);
}

TEST(SettingsTableTest, EveryOperationHasASettingAndNoSettingOrCodeOccursTwice) {
  std::set<Op> reached{Op::SetMyMemory};
  for (const int pageSet : {0, 1, 2, 3, 4, 5}) {
    std::set<Id> ids;
    std::set<int> codes;
    for (const Setting& setting : SettingsTable()) {
      if (!Knows(setting.sets, pageSet)) continue;
      EXPECT_TRUE(ids.insert(setting.id).second) << setting.name;
      EXPECT_TRUE(setting.code == 0 || codes.insert(setting.code).second) << setting.name;
      for (const Binding& binding : setting.operations) {
        if (binding.verb != Verb::None) reached.insert(binding.operation);
      }
    }
    EXPECT_EQ(ids.size(), kSettingCount);
  }
  EXPECT_EQ(reached.size(), kOperationCount - 4) << "all but those that name a code";
}

TEST(SimulatedProjector, SoundIsKeptForEachSourceAndForStandby) {
  constexpr int kStandby = SimulatedProjector::kStandbySource;
  SimulatedProjector projector;
  EXPECT_EQ(Replies(projector, {Do(Op::SetVolumeEachSrc, kStandby, 5), Get(0x2001),
                                Do(Op::SetVolumeEachSrc, 2, 30), Do(Op::SetVolumeEachSrc, -1, 30),
                                Do(Op::SetVolumeEachSrc, 256, 30), Set(0x2000, 2), Inc(0x2001),
                                Do(Op::GetInputSrcVolume, 2), Do(Op::GetInputSrcVolume, kStandby),
                                Do(Op::SetVolumeEachSrc, 255, 30)}),
            "5 16 30 - - 2 31 31 5 30");
  EXPECT_EQ(projector.Value(Id::Volume, kStandby), 5);
  EXPECT_EQ(Replies(projector, {Do(Op::SetInputSrcTreble, 3, 130), Do(Op::GetInputSrcTreble, 2),
                                Do(Op::SetInputSrcBass, 3, 126), Do(Op::GetInputSrcBass, 2),
                                Do(Op::SetSRSWOW, 3, 2), Do(Op::GetSRSWOW, 2)}),
            "130 128 126 128 2 0");
}

TEST(SimulatedProjector, MemoriesStoreOnlyThePicture) {
  SimulatedProjector projector;
  EXPECT_EQ(Replies(projector,
                    {Do(Op::SetMyMemory, 4), Set(0x2003, 140), Do(Op::SetMyMemory, 4),
                     Set(0x2002, 1), Do(Op::SetMyMemory, 3), Get(0x2003), Do(Op::SetMyMemory, 0),
                     Get(0x2003), Get(0x2002), Do(Op::SetMyMemory, 8), Do(Op::SetMyMemory, -1)}),
            "0 140 0 1 0 128 0 140 1 - -");
}

TEST(SimulatedProjector, CodesWithoutMeaningStoreAnyValue) {
  SimulatedProjector projector;
  EXPECT_EQ(
      Replies(projector, {Get(0x2035), Set(0x2035, -1), Inc(0x2035), Get(0x2035), Set(0x2035, 0)}),
      "0 -1 - -1 0");
}

TEST(SimulatedModelTest, AHostsDescriptionDefinesTheProjector) {
  ModelData data;
  data.DialogType = 3;
  data.GammaList = {.count = 2, .values = {16, 20, 99}, .names = {}};
  data.ColorTempList = {.count = 2, .values = {1, 3}, .names = {}};
  data.AspectList = {.count = 2, .values = {5, 7, 99}, .names = {}};
  data.MySourceList.count = 2;
  data.MySourceList.firstValues = {4, 1};
  data.RangeTexts[RangeIndex::Brightness] = "100, 156";
  for (const char* const text : {"", "3", ",3", " ,3", "3, ", "a,3", "3,b", "9,3"}) {
    data.RangeTexts[RangeIndex::Contrast] = text;
    EXPECT_FALSE(DescribeModel(data).ranges.contains(Id::Contrast)) << text;
  }
  data.RangeTexts[RangeIndex::Sharpness] = "8,8";
  SimulatedModel model = DescribeModel(data);
  model.missing = {Id::Tint, Id::StartUp, Id::Power};
  SimulatedProjector projector(model);
  EXPECT_EQ(projector.RangeOf(Id::Brightness), (SettingRange{100, 156}));
  EXPECT_EQ(projector.RangeOf(Id::Contrast), (SettingRange{80, 176})) << "a text without sense";
  EXPECT_EQ(projector.RangeOf(Id::Sharpness), (SettingRange{8, 8}));
  EXPECT_EQ(projector.ValuesOf(Id::Aspect).size(), 2U);
  projector.SetPowerTimes(1h, 1h);
  projector.SetValue(Id::Tint, 5);
  projector.SetCodeValue(0x2203, 5);
  EXPECT_FALSE(projector.Has(Id::Tint) || projector.Power() || projector.CodeValue(0x3001));
  EXPECT_TRUE(projector.ValuesOf(Id::Tint).empty() && projector.Value(Id::Tint) == 0);
  EXPECT_EQ(Replies(projector, {Do(Op::SetTint, 128), Get(0x2203), Do(Op::ExecTintReset),
                                Get(0x2000), Get(0x30A1), Do(Op::SetGamma, 1), Get(0x30A1),
                                Set(0x30A1, 99), Set(0x30A1, 3), Get(0x30A1), Get(0x30B0)}),
            "- - - 4 16 20 20 - 3 20 3")
      << "3 is a color temperature, which this page set takes as a gamma too";
}

TEST(SimulatedProjector, WarmsUpAndCoolsDownInTime) {
  static constexpr PjtCommand kSwitch[] = {{Op::SetPowerOff}, {Op::SetPowerOn}};
  constexpr PowerState kMeanwhile[] = {PowerState::CoolingDown, PowerState::WarmingUp};
  constexpr PowerState kThen[] = {PowerState::Standby, PowerState::On};
  for (const bool on : {true, false}) {
    const auto make = [on](std::chrono::milliseconds time, std::chrono::milliseconds otherTime) {
      auto projector = std::make_unique<SimulatedProjector>();
      projector->SetValue(Id::Power, on ? 0 : 1);
      projector->SetPowerTimes(on ? time : otherTime, on ? otherTime : time);
      EXPECT_EQ(projector->Execute(kSwitch[on]).result, AcceptedResult(kSwitch[on].operation));
      return projector;
    };
    const auto slow = make(1h, 0ms);
    slow->SetValue(Id::Brightness, 130);
    slow->SetCodeValue(0x2003, 130);
    EXPECT_EQ(slow->Power(), kMeanwhile[on]);
    EXPECT_EQ(slow->Value(Id::Power), on ? 1 : 2);
    EXPECT_EQ(slow->Execute(kSwitch[!on]).result, RefusedResult(kSwitch[!on].operation));
    EXPECT_EQ(slow->Power(), kMeanwhile[on]) << "it refuses until it has switched";

    const auto quick = make(20ms, 1h), seen = make(20ms, 1h), switched = make(20ms, 1h);
    const auto told = make(20ms, 1h);
    EXPECT_TRUE(Soon([&] { return quick->Power() == kThen[on]; }));
    EXPECT_TRUE(Soon([&] { return seen->Value(Id::Power) == on; }));
    EXPECT_TRUE(Soon([&] { return told->CodeValue(0x6000) == on; }));
    EXPECT_TRUE(Soon([&] { return Replies(*switched, {kSwitch[!on]}) != "-"; }));
    EXPECT_NE(Replies(*quick, {kSwitch[on]}), "-");
    EXPECT_EQ(quick->Power(), kThen[on]) << "it was so already";
  }
}

struct FaultChannelTest : testing::Test {
  std::shared_ptr<SimulatedProjector> projector = std::make_shared<SimulatedProjector>();
  FaultChannel channel{projector, 1min};
};

TEST_F(FaultChannelTest, TheMostSpecificFaultAppliesAndLateAnswersArrive) {
  const std::vector commands{Do(Op::SetBrightness, 130), Do(Op::ExecTintReset), Get(0x2004),
                             Do(Op::GetColorTempGainR),  Set(0x2002, 1),        Get(0x2002)};
  const Fault refuse{.kind = Fault::Kind::Refuse};
  channel.SetFault(refuse);
  EXPECT_EQ(Replies(channel, commands), "- - - - - -");
  EXPECT_EQ(projector->Value(SettingId::Brightness), 128);
  channel.SetFault(Op::SetBrightness, {.kind = Fault::Kind::Late, .delay = 40ms});
  const auto start = Clock::now();
  EXPECT_EQ(Replies(channel, commands), "130 - - - - -");
  EXPECT_GE(Clock::now() - start, 40ms);
  channel.SetFault({.kind = Fault::Kind::FailRead});
  channel.SetFault(Op::SetBrightness, refuse);
  EXPECT_EQ(Replies(channel, commands), "- 128 - - 1 -");
  channel.SetFault({});
  channel.SetFault(std::uint16_t{0x2002}, refuse);
  EXPECT_EQ(Replies(channel, commands), "- 128 128 128 - -");
  channel.SetFault(Op::SetBrightness, {});
  EXPECT_EQ(Replies(channel, commands), "130 128 128 128 - -");
  channel.SetFault(refuse);
  channel.Clear();
  EXPECT_EQ(Replies(channel, commands), "130 128 128 128 1 1");
}

TEST_F(FaultChannelTest, ADropOutEndsWhenTheFaultIsCleared) {
  FaultChannel outer(std::shared_ptr<ProjectorChannel>(projector, &channel));
  channel.SetFault(Op::GetMirror, {.kind = Fault::Kind::DropOut});
  const auto start = Clock::now();
  std::thread clearer([&] {
    std::this_thread::sleep_for(400ms);
    // A fault of another command must not end the wait, nor wait for its end.
    for (auto* const at : {&outer, &channel}) {
      at->SetFault(Op::GetSpeaker, {.kind = Fault::Kind::Refuse});
    }
    std::this_thread::sleep_for(400ms);
    channel.Clear();
  });
  EXPECT_FALSE(outer.Execute({Op::GetMirror}).answered);
  const auto waited = Clock::now() - start;
  clearer.join();
  EXPECT_GE(waited, 800ms);
  EXPECT_LT(waited, 30s);
  EXPECT_TRUE(channel.Execute({Op::GetMirror}).answered);

  FaultChannel bounded(projector, 20ms);
  bounded.SetFault({.kind = Fault::Kind::DropOut});
  EXPECT_FALSE(bounded.Execute({Op::GetMirror}).answered);
}

}  // namespace
