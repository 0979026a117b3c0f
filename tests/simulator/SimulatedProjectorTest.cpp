#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "device/CPjtInterface.h"
#include "simulator/SimulatedProjector.h"

namespace {

using Id = SettingId;
using Op = PjtOperation;

constexpr int kSource = 3;

std::vector<int> Allowed(const SimulatedProjector& projector, Id id) {
  const auto list = projector.ValuesOf(id);
  if (!list.empty()) return {list.begin(), list.end()};
  const SettingRange range = projector.RangeOf(id);
  return {range.minimum, (range.minimum + range.maximum) / 2, range.maximum};
}

std::vector<int> Forbidden(const SimulatedProjector& projector, Id id) {
  if (!projector.ValuesOf(id).empty()) return {0x7E};
  const SettingRange range = projector.RangeOf(id);
  return {range.minimum - 1, range.maximum + 1};
}

/// What a caller sends so that the setting gets the device value.
int Written(const SimulatedProjector& projector, Id id, int device, ValueForm form) {
  switch (form) {
    case ValueForm::Device:
      return device;
    case ValueForm::OneBased:
      return device - 1;
    case ValueForm::TwoBased:
      return device - 2;
    case ValueForm::Shown:
      return device - 128;
    case ValueForm::Position:
      break;
  }
  const auto list = projector.ValuesOf(id);
  if (list.empty()) return device;
  return static_cast<int>(std::ranges::find(list, device) - list.begin());
}

/// One setting of one projector, reached as callers reach it.
class Probe {
 public:
  Probe(SimulatedProjector& projector, Id id)
      : projector_(projector), id_(id), setting_(*projector.Describe(id)) {}

  int Value() const { return projector_.Value(id_, Source()); }
  void Put(int value) { projector_.SetValue(id_, value, Source()); }
  int Source() const { return setting_.perSource ? kSource : SimulatedProjector::kCurrentSource; }

  bool Write(const Binding& binding, int device) {
    const auto value = static_cast<std::int16_t>(Written(projector_, id_, device, binding.form));
    return setting_.perSource ? Run({binding.operation, 0, kSource, value})
                              : Run({binding.operation, 0, value, 1});
  }

  bool Run(const Binding& binding) {
    const int first = setting_.perSource ? kSource : std::max(binding.selector, 0);
    return Run({binding.operation, 0, static_cast<std::int16_t>(first)});
  }

  bool Generic(Op operation, int value = 0) {
    return Run({operation, setting_.code, static_cast<std::int16_t>(value)});
  }

  /// Whatever reads the setting, by name or code, must see its value.
  void ExpectReadAlike() {
    for (const Binding& binding : setting_.operations) {
      if (binding.verb != Verb::Read) continue;
      EXPECT_TRUE(Run(binding));
      EXPECT_EQ(reply_.value, Value());
    }
    if (setting_.code == 0) return;
    EXPECT_TRUE(Generic(Op::Get));
    EXPECT_EQ(static_cast<std::uint16_t>(reply_.value), Value());
  }

  const Setting& Row() const { return setting_; }
  int Reply() const { return reply_.value; }

 private:
  bool Run(const PjtCommand& command) {
    reply_ = projector_.Execute(command);
    return IsSuccess(command.operation, reply_.result);
  }

  SimulatedProjector& projector_;
  Id id_;
  const Setting& setting_;
  PjtReply reply_;
};

class EveryPageSet : public testing::TestWithParam<int> {
 protected:
  /// Volume's generic code means the current input.
  EveryPageSet() { projector_.SetValue(Id::InputSource, kSource); }

  template <typename Check>
  void ForEverySetting(Check check) {
    for (const Id id : projector_.Settings()) {
      if (id == Id::InputSource) continue;
      Probe probe(projector_, id);
      SCOPED_TRACE(std::string(probe.Row().name));
      check(probe, id);
    }
  }

  SimulatedProjector projector_{SimulatedModel{.pageSet = GetParam(), .ranges = {}}};
};

TEST_P(EveryPageSet, AcceptsWhatIsAllowedAndNothingElse) {
  ForEverySetting([&](Probe& probe, Id id) {
    probe.ExpectReadAlike();
    const bool generic = probe.Row().code != 0 && !probe.Row().reported;
    for (const Binding& binding : probe.Row().operations) {
      if (binding.verb != Verb::Write) continue;
      for (const int value : Allowed(projector_, id)) {
        EXPECT_TRUE(probe.Write(binding, value)) << value;
        EXPECT_EQ(probe.Value(), value);
        probe.ExpectReadAlike();
      }
      const int kept = probe.Value();
      for (const int value : Forbidden(projector_, id)) {
        EXPECT_FALSE(probe.Write(binding, value)) << value;
        EXPECT_EQ(probe.Value(), kept);
      }
    }
    if (probe.Row().code == 0) return;
    for (const int value : Allowed(projector_, id)) {
      EXPECT_EQ(probe.Generic(Op::Set, value), generic) << value;
      if (generic) {
        EXPECT_EQ(probe.Value(), value);
      }
      probe.ExpectReadAlike();
    }
    if (probe.Row().range.maximum == 0xFFFF) return;
    for (const int value : Forbidden(projector_, id)) {
      EXPECT_FALSE(probe.Generic(Op::Set, value)) << value;
    }
  });
}

TEST_P(EveryPageSet, StepsStopAtTheEnds) {
  ForEverySetting([&](Probe& probe, Id id) {
    const std::vector<int> allowed = Allowed(projector_, id);
    const bool generic = probe.Row().code != 0 && !probe.Row().reported;
    const auto expectEnd = [&](bool up, const auto& step) {
      const int last = up ? allowed.back() : allowed.front();
      const int next = up ? allowed[allowed.size() - 2] : allowed[1];
      const int beforeLast = projector_.ValuesOf(id).empty() ? (up ? last - 1 : last + 1) : next;
      probe.Put(beforeLast);
      EXPECT_TRUE(step());
      EXPECT_EQ(probe.Value(), last);
      EXPECT_FALSE(step());
      EXPECT_EQ(probe.Value(), last);
    };
    for (const Binding& binding : probe.Row().operations) {
      if (binding.verb != Verb::StepUp && binding.verb != Verb::StepDown) continue;
      expectEnd(binding.verb == Verb::StepUp, [&] {
        const bool stepped = probe.Run(binding);
        const int shown = binding.form == ValueForm::Shown ? 128 : 0;
        if (stepped) {
          EXPECT_EQ(probe.Reply(), probe.Value() - shown);
        }
        return stepped;
      });
    }
    if (!generic) return;
    expectEnd(true, [&] { return probe.Generic(Op::Inc); });
    expectEnd(false, [&] { return probe.Generic(Op::Dec); });
  });
}

TEST_P(EveryPageSet, ResetsRestoreTheStandard) {
  ForEverySetting([&](Probe& probe, Id id) {
    for (const Binding& binding : probe.Row().operations) {
      if (binding.verb != Verb::Reset) continue;
      const int standard = probe.Row().reset.value_or(probe.Row().standard);
      const int other = standard == Allowed(projector_, id).back() ? standard - 1 : standard + 1;
      probe.Put(other);
      EXPECT_TRUE(probe.Run(binding));
      EXPECT_EQ(probe.Value(), standard);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(PageSets, EveryPageSet, testing::Values(1, 3, 5));

TEST(SettingsTableTest, EveryOperationReachesSomething) {
  for (std::size_t i = 0; i < kOperationCount; ++i) {
    const auto operation = static_cast<Op>(i);
    if (FamilyOf(operation) == OperationFamily::Generic || operation == Op::SetMyMemory) continue;
    EXPECT_TRUE(std::ranges::any_of(SettingsTable(), [&](const Setting& setting) {
      return std::ranges::any_of(setting.operations, [&](const Binding& binding) {
        return binding.verb != Verb::None && binding.operation == operation;
      });
    })) << OperationName(operation);
  }
}

TEST(SettingsTableTest, NoPageSetKnowsASettingOrACodeTwice) {
  for (const bool third : {false, true}) {
    std::set<Id> ids;
    std::set<int> codes;
    for (const Setting& setting : SettingsTable()) {
      if (setting.sets == (third ? PageSets::ButThird : PageSets::Third)) continue;
      EXPECT_TRUE(ids.insert(setting.id).second) << setting.name;
      if (setting.code == 0) continue;
      EXPECT_TRUE(codes.insert(setting.code).second) << setting.name;
    }
    EXPECT_EQ(ids.size(), kSettingCount);
  }
}

/// A projector seen through the interface that the pages use.
class SimulatedProjectorTest : public testing::Test {
 protected:
  explicit SimulatedProjectorTest(SimulatedModel model = {})
      : projector_(std::make_shared<SimulatedProjector>(std::move(model))) {
    pjt_.SetChannel(projector_);
  }

  int Get(unsigned short code) {
    unsigned short value = 0;
    return pjt_.Get(code, 0, &pjt_, &value) == 1 ? value : -1;
  }
  template <typename Getter, typename... Arguments>
  int Read(Getter getter, Arguments... arguments) {
    short value = 0;
    return (pjt_.*getter)(arguments..., &value) != 0 ? value : -1;
  }

  std::shared_ptr<SimulatedProjector> projector_;
  CPjtInterface pjt_;
};

TEST_F(SimulatedProjectorTest, ListPositionsBecomeTheValuesThatAreReadBack) {
  pjt_.SetVideoNR(2, 1);
  EXPECT_EQ(Get(0x2206), 3);
  pjt_.SetRgbIn2(1, 0);
  EXPECT_EQ(Read(&CPjtInterface::GetRgbIn, 2), 3);
  EXPECT_EQ(Read(&CPjtInterface::GetRgbIn, 1), 2);
  pjt_.SetCVideoFormat(1);
  pjt_.SetSVideoFormat(6);
  EXPECT_EQ(Read(&CPjtInterface::GetVideoFormat, 1), 4);
  EXPECT_EQ(Read(&CPjtInterface::GetVideoFormat, 0), 7);
  pjt_.SetVideoFormat(7);
  EXPECT_EQ(Get(0x2200), 10) << "there is no eighth format";
  pjt_.SetStartup(2);
  EXPECT_EQ(Get(0x3004), 32);
  pjt_.SetPinPInput(1);
  EXPECT_EQ(Get(0x2302), 2);
  pjt_.SetAudioComputer1(3);
  EXPECT_EQ(Read(&CPjtInterface::GetAudioRGB1), 3);
}

TEST_F(SimulatedProjectorTest, SteppersOfAChannelExchangeShownValues) {
  EXPECT_EQ(pjt_.Set(0x30B2, 100, &pjt_), 1);
  EXPECT_EQ(pjt_.IncrementColorTempGain(1, -28), -27);
  EXPECT_EQ(pjt_.GetColorTempGainG(), 101);
  EXPECT_EQ(pjt_.GetColorTempGainR(), 128) << "the other channels stay";
  projector_->SetValue(Id::ColorTempOffsetB, 255);
  EXPECT_EQ(pjt_.IncrementColorTempOffset(2, 127), 127);
  EXPECT_EQ(pjt_.IncrementColorTempOffset(3, 5), 5) << "there is no such channel";
  EXPECT_EQ(pjt_.ExecUserGammaPReset(9), 0);
}

TEST_F(SimulatedProjectorTest, SoundIsKeptForEachSource) {
  constexpr short kStandby = SimulatedProjector::kStandbySource;
  EXPECT_NE(pjt_.SetVolumeEachSrc(kStandby, 5), 0);
  EXPECT_NE(pjt_.SetVolumeEachSrc(2, 30), 0);
  EXPECT_EQ(Read(&CPjtInterface::GetInputSrcVolume, int{kStandby}), 5);
  EXPECT_EQ(Get(0x2001), 16) << "the current input's";
  EXPECT_EQ(pjt_.Set(0x2000, 2, &pjt_), 1);
  EXPECT_EQ(Read(&CPjtInterface::GetInputSource), 2);
  EXPECT_EQ(pjt_.Inc(0x2001, 0, &pjt_), 1);
  EXPECT_EQ(Read(&CPjtInterface::GetInputSrcVolume, 2), 31);
  EXPECT_EQ(pjt_.SetSRSWOW(2, 1), 0);
  EXPECT_EQ(Read(&CPjtInterface::GetInputSrcVolume, -1), -1) << "no source, no volume";
}

TEST_F(SimulatedProjectorTest, MemoriesKeepThePictureAndNothingElse) {
  pjt_.SetBrightness(140);
  pjt_.SetMute(1);
  EXPECT_NE(pjt_.SetMyMemory(6), 0);
  pjt_.SetBrightness(100);
  pjt_.SetMute(0);
  EXPECT_NE(pjt_.SetMyMemory(2), 0);
  EXPECT_EQ(Get(0x2003), 140);
  EXPECT_EQ(Get(0x2002), 0);
  EXPECT_NE(pjt_.SetMyMemory(3), 0);
  EXPECT_EQ(Get(0x2003), 128) << "the other memories are as new";
  EXPECT_EQ(pjt_.SetMyMemory(8), 0);
  EXPECT_EQ(pjt_.SetMyMemory(-1), 0);
}

TEST_F(SimulatedProjectorTest, PowerAndStatesFollowTheirOwnCommandsOnly) {
  pjt_.SetPowerOff();
  EXPECT_EQ(Get(0x6000), 0);
  EXPECT_EQ(pjt_.SetPowerOn(), 0);
  EXPECT_EQ(Get(0x6000), 1);
  EXPECT_NE(pjt_.Set(0x6000, 0, &pjt_), 1);
  projector_->SetValue(Id::ErrorStatus, 200);
  EXPECT_EQ(Get(0x6020), 200);
}

TEST_F(SimulatedProjectorTest, CodesWithoutMeaningKeepWhatIsWritten) {
  EXPECT_EQ(Get(0x2035), 0);
  EXPECT_EQ(pjt_.Set(0x2035, 0xFFFF, &pjt_), 1);
  EXPECT_EQ(Get(0x2035), 0xFFFF);
  EXPECT_NE(pjt_.Inc(0x2035, 0, &pjt_), 1);
  EXPECT_EQ(Get(0x30B4), -1) << "nobody has this code";
}

TEST(SimulatedModelTest, AHostsDescriptionShapesTheProjector) {
  ModelData data;
  data.DialogType = 3;
  data.GammaList = {.count = 2, .values = {16, 20, 99}, .names = {}};
  data.ColorTempList = {.count = 2, .values = {1, 3}, .names = {}};
  data.MySourceList.count = 2;
  data.MySourceList.firstValues = {4, 1};
  data.RangeTexts[RangeIndex::Brightness] = "100, 156";
  data.RangeTexts[RangeIndex::Sharpness] = "125,131";
  data.RangeTexts[RangeIndex::Contrast] = "9,3";
  SimulatedModel model = DescribeModel(data);
  model.missing = {Id::Tint};
  SimulatedProjector projector(model);

  EXPECT_EQ(projector.RangeOf(Id::Brightness), (SettingRange{100, 156}));
  EXPECT_EQ(projector.RangeOf(Id::Contrast), (SettingRange{80, 176})) << "a text without sense";
  EXPECT_EQ(projector.Value(Id::Gamma), 16);
  projector.Execute({Op::SetGamma, 0, 1});
  EXPECT_EQ(projector.CodeValue(0x30A1), 20);
  EXPECT_NE(projector.Execute({Op::Set, 0x30A1, 99}).result, 1);
  EXPECT_EQ(projector.Execute({Op::Set, 0x30A1, 3}).result, 1);
  EXPECT_EQ(projector.CodeValue(0x30B0), 3) << "this page set takes a color temperature there too";
  EXPECT_EQ(projector.CodeValue(0x30A1), 20);
  EXPECT_EQ(projector.Value(Id::InputSource), 4);
  EXPECT_FALSE(projector.Has(Id::Tint));
  EXPECT_EQ(projector.Execute({Op::SetTint, 0, 128}).result, 0);
  EXPECT_EQ(projector.Execute({Op::Get, 0x2203}).result, 0);
  EXPECT_NE(projector.Execute({Op::ExecTintReset}).result, 0);

  projector.Execute({Op::SetMirror, 0, 2});
  EXPECT_EQ(projector.CodeValue(0x3004), 2) << "this page set's code of the mirror";
  projector.Execute({Op::SetPinPAudio, 0, 1});
  EXPECT_EQ(projector.CodeValue(0x2302), 1);
}

}  // namespace
