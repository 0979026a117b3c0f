#include <optional>
#include <set>

#include <gtest/gtest.h>

#include "device/LoggingChannel.h"
#include "simulator/SimulatedProjector.h"

namespace {

using Id = SettingId;
using Op = PjtOperation;

/// A command to a new projector whose setting was given a value, and what comes of it.
struct Case {
  Id id;
  int before;
  PjtCommand command;
  int after;
  std::optional<int> reply = std::nullopt;  ///< Refused without one; then `after` is `before`.
};

constexpr Case kCases[] = {
    {Id::Brightness, 97, {Op::SetBrightness, 0, 95}, 97},
    {Id::Brightness, 97, {Op::SetBrightness, 0, 161}, 97},
    {Id::Brightness, 97, {Op::Set, 0x2003, 161}, 97},
    {Id::Brightness, 159, {Op::Inc, 0x2003}, 160, 160},
    {Id::Brightness, 160, {Op::Inc, 0x2003}, 160},
    {Id::Brightness, 97, {Op::Dec, 0x2003}, 96, 96},
    {Id::Brightness, 96, {Op::Dec, 0x2003}, 96},
    {Id::Brightness, 97, {Op::ExecBrightnessReset}, 128, 128},
    {Id::LampTime, 97, {Op::ExecLampTimeReset}, 0, 0},
    // A list's values, and positions in it.
    {Id::VideoFormat, 5, {Op::Set, 0x2200, 6}, 5},
    {Id::VideoFormat, 5, {Op::SetVideoFormat, 0, 7}, 5},
    {Id::VideoFormat, 5, {Op::SetVideoFormat, 0, -1}, 5},
    {Id::VideoFormat, 10, {Op::Inc, 0x2200}, 4, 4},
    {Id::VideoFormat, 7, {Op::Inc, 0x2200}, 7},
    {Id::VideoFormat, 10, {Op::Dec, 0x2200}, 10},
    {Id::VideoFormat, 99, {Op::Inc, 0x2200}, 99},
    // Values written from one on, or stepped to as a page shows them.
    {Id::VideoNoiseReduction, 1, {Op::SetVideoNR, 0, 3, 1}, 1},
    {Id::ColorTempGainG, 100, {Op::IncrementColorTempGain, 0, 1, -28}, 101, -27},
    {Id::ColorTempGainG, 100, {Op::IncrementColorTempGain, 0, 0, -28}, 100, 1},
    {Id::ColorTempOffsetB, 255, {Op::IncrementColorTempOffset, 0, 2, 127}, 255},
    {Id::ColorTempOffsetB, 1, {Op::DecrementColorTempOffset, 0, 2, -127}, 0, -128},
    {Id::ColorTempOffsetB, 1, {Op::DecrementColorTempOffset, 0, 3, -127}, 1},
    {Id::GammaPoint3, 120, {Op::GetUserGammaPoint, 0, 3}, 120, 120},
    {Id::GammaPoint3, 120, {Op::ExecUserGammaPReset, 0, 3}, 128, 128},
    {Id::GammaPoint3, 120, {Op::ExecUserGammaPReset, 0, 2}, 120, 128},
    {Id::GammaPoint3, 120, {Op::ExecUserGammaPReset, 0, 9}, 120},
    {Id::KeystoneV, 254, {Op::IncrementKeystoneV}, 255, 255},
    {Id::KeystoneH, 1, {Op::ExecAutoKeyStone}, 128, 128},
    {Id::PhaseH, 1, {Op::ExecAutoAdjust}, 16, 1344},
    // Sound, of the source named or of the current one.
    {Id::Bass, 128, {Op::SetInputSrcBass, 0, 0, 130}, 130, 130},
    {Id::Treble, 131, {Op::IncrementInputSrcTreb, 0, 0}, 132, 132},
    {Id::SrsWow, 0, {Op::SetSRSWOW, 0, 0, 1}, 0},
    {Id::Volume, 16, {Op::Inc, 0x2001}, 17, 17},
    // States, and a code that nobody has.
    {Id::Power, 1, {Op::SetPowerOff}, 0, 0},
    {Id::Power, 0, {Op::SetPowerOn}, 1, 1},
    {Id::Power, 1, {Op::Set, 0x6000, 0}, 1},
    {Id::ErrorStatus, 200, {Op::Get, 0x6020}, 200, 200},
    {Id::Brightness, 97, {Op::Get, 0x30B4}, 97},
};

TEST(SimulatedProjector, DoesWhatACommandSaysOrRefusesIt) {
  for (const Case& expected : kCases) {
    SimulatedProjector projector;
    projector.SetValue(expected.id, expected.before);
    const PjtReply reply = projector.Execute(expected.command);
    SCOPED_TRACE(FormatCommand(expected.command, &reply));
    EXPECT_EQ(projector.Value(expected.id), expected.after);
    EXPECT_EQ(IsSuccess(expected.command.operation, reply.result), expected.reply.has_value());
    if (expected.reply) {
      EXPECT_EQ(reply.value, expected.reply);
    }
  }
}

TEST(SettingsTableTest, EveryOperationReachesSomethingAndNoSettingOrCodeStandsTwice) {
  std::set<Op> reached{Op::SetMyMemory};
  for (const PageSets others : {PageSets::ButThird, PageSets::Third}) {
    std::set<Id> ids;
    std::set<int> codes;
    for (const Setting& setting : SettingsTable()) {
      if (setting.sets == others) continue;
      EXPECT_TRUE(ids.insert(setting.id).second) << setting.name;
      EXPECT_TRUE(setting.code == 0 || codes.insert(setting.code).second) << setting.name;
      for (const Binding& binding : setting.operations) {
        if (binding.verb != Verb::None) reached.insert(binding.operation);
      }
    }
    EXPECT_EQ(ids.size(), kSettingCount);
  }
  for (std::size_t i = 0; i < kOperationCount; ++i) {
    const auto operation = static_cast<Op>(i);
    EXPECT_NE(reached.contains(operation), FamilyOf(operation) == OperationFamily::Generic)
        << OperationName(operation);
  }
}

/// Whether each command is accepted.
std::vector<bool> Accepts(SimulatedProjector& projector, const std::vector<PjtCommand>& commands) {
  std::vector<bool> accepted;
  for (const PjtCommand& command : commands) {
    accepted.push_back(IsSuccess(command.operation, projector.Execute(command).result));
  }
  return accepted;
}

TEST(SimulatedProjector, SoundIsKeptForEachSource) {
  constexpr int kStandby = SimulatedProjector::kStandbySource;
  SimulatedProjector projector;
  EXPECT_EQ(Accepts(projector, {{Op::SetVolumeEachSrc, 0, kStandby, 5},
                                {Op::SetVolumeEachSrc, 0, 2, 30},
                                {Op::SetVolumeEachSrc, 0, -1, 30}}),
            (std::vector{true, true, false}));
  EXPECT_EQ(projector.Value(Id::Volume, kStandby), 5);
  EXPECT_EQ(projector.CodeValue(0x2001), 16) << "the current input's";
  Accepts(projector, {{Op::Set, 0x2000, 2}, {Op::Inc, 0x2001}});
  EXPECT_EQ(projector.Execute({Op::GetInputSrcVolume, 0, 2}).value, 31);
}

TEST(SimulatedProjector, MemoriesKeepThePictureAndNothingElse) {
  SimulatedProjector projector;
  Accepts(projector, {{Op::SetBrightness, 0, 140}, {Op::SetMute, 0, 1}, {Op::SetMyMemory, 0, 6}});
  Accepts(projector, {{Op::SetBrightness, 0, 100}, {Op::SetMute, 0, 0}, {Op::SetMyMemory, 0, 2}});
  EXPECT_EQ(projector.Value(Id::Brightness), 140);
  EXPECT_EQ(projector.Value(Id::Mute), 0);
  EXPECT_EQ(Accepts(projector, {{Op::SetMyMemory, 0, 3}, {Op::SetMyMemory, 0, 8}}),
            (std::vector{true, false}));
  EXPECT_EQ(projector.Value(Id::Brightness), 128) << "the other memories are as new";
  EXPECT_EQ(Accepts(projector, {{Op::SetMyMemory, 0, -1}}), std::vector{false});
}

TEST(SimulatedProjector, CodesWithoutMeaningKeepWhatIsWritten) {
  SimulatedProjector projector;
  EXPECT_EQ(projector.CodeValue(0x2035), 0);
  EXPECT_EQ(Accepts(projector, {{Op::Set, 0x2035, -1}, {Op::Inc, 0x2035}, {Op::Get, 0x2035}}),
            (std::vector{true, false, true}));
  EXPECT_EQ(projector.CodeValue(0x2035), 0xFFFF);
}

TEST(SimulatedModelTest, AHostsDescriptionShapesTheProjector) {
  ModelData data;
  data.DialogType = 3;
  data.GammaList = {.count = 2, .values = {16, 20, 99}, .names = {}};
  data.ColorTempList = {.count = 2, .values = {1, 3}, .names = {}};
  data.MySourceList.count = 2;
  data.MySourceList.firstValues = {4, 1};
  data.RangeTexts[RangeIndex::Brightness] = "100, 156";
  data.RangeTexts[RangeIndex::Contrast] = "9,3";
  SimulatedModel model = DescribeModel(data);
  model.missing = {Id::Tint};
  SimulatedProjector projector(model);

  EXPECT_EQ(projector.RangeOf(Id::Brightness), (SettingRange{100, 156}));
  EXPECT_EQ(projector.RangeOf(Id::Contrast), (SettingRange{80, 176})) << "a text without sense";
  EXPECT_EQ(projector.Value(Id::Gamma), 16);
  projector.Execute({Op::SetGamma, 0, 1});
  EXPECT_EQ(projector.CodeValue(0x30A1), 20);
  EXPECT_EQ(Accepts(projector, {{Op::Set, 0x30A1, 99}, {Op::Set, 0x30A1, 3}}),
            (std::vector{false, true}));
  EXPECT_EQ(projector.CodeValue(0x30B0), 3) << "this page set takes a color temperature there too";
  EXPECT_EQ(projector.CodeValue(0x30A1), 20);
  EXPECT_EQ(projector.Value(Id::InputSource), 4);
  EXPECT_FALSE(projector.Has(Id::Tint));
  EXPECT_EQ(Accepts(projector, {{Op::SetTint, 0, 128}, {Op::Get, 0x2203}, {Op::ExecTintReset}}),
            (std::vector{false, false, false}));
}

}  // namespace
