// Uses every setting of every model as a program without a window does, on the simulated projector.
// The simulation defines independently what a projector does, so settings and simulation check each
// other.

#include <array>
#include <optional>
#include <tuple>

#include "device/CommandCode.h"
#include "device/ModelDataIntake.h"
#include "device/channels/LoggingChannel.h"
#include "settings/ModelSettings.h"
#include "settings/Range.h"
#include "simulator/FaultChannel.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/Models.h"
#include "tests/support/Record.h"
#include "tests/support/RecordingChannel.h"

namespace {

using Kind = ModelSetting::Kind;

// A model of an unknown page set has settings, too.
std::vector<CModelInfo2> EveryModelAndAnUnknownOne() {
  std::vector<CModelInfo2> models = EveryModel();
  models.push_back(FullModel(0, 0));
  return models;
}

// All choices, or the ends of a range.
std::vector<int> ValuesOf(const ModelSetting& setting) {
  std::vector<int> values{0, 1};
  if (setting.kind == Kind::Number) {
    const Range range = setting.range.value_or(Range{100, 120});
    values = {range.minimum, range.maximum};
  } else if (setting.kind == Kind::Choice) {
    values.clear();
    for (const ListEntry& entry : setting.entries) values.push_back(entry.value);
    std::erase(values, setting.placeholder);
  }
  return values;
}

// Values next to the allowed ones.
std::vector<int> OthersOf(const ModelSetting& setting) {
  if (setting.kind != Kind::Number) return {-2, 12345, setting.placeholder.value_or(12345)};
  const Range range = setting.range.value_or(Range{0, 0xFFFF});
  return {range.minimum - 1, range.maximum + 1};
}

// − and + reach the ends of the range, and no more. Some models leave the ends to the projector.
void ExpectSteps(CPjtInterface& projector, const ModelSettings& settings,
                 const ModelSetting& setting) {
  const auto& row = std::get<ValueRow>(*setting.row);
  const Range bounds = StepBounds(row, settings.Model());
  if (bounds.maximum == kUnbounded.maximum) return;
  const int source = AskSource(projector, row.of, settings.Model().ModelCode).value_or(0);
  for (const bool upwards : {false, true}) {
    const int last = upwards ? bounds.maximum : bounds.minimum;
    const int before = upwards ? last - 1 : last + 1;
    settings.Change(projector, setting, before + row.bias);
    const auto step = [&](int from) { return Step(projector, row, upwards, source, bounds, from); };
    EXPECT_EQ(step(before).value, last + row.bias);
    // Only the projector limits the steps for a source.
    if (FamilyOf(row.Stepping(upwards).operation) == OperationFamily::SourceStepper) continue;
    EXPECT_FALSE(step(last).value);
    EXPECT_EQ(settings.Read(projector, setting), last + row.bias);
  }
}

// Settings that are not read back as sent, for reasons given in their tables.
const std::set<std::string_view> kOneWay{"image.color-temp"};

void ExpectWorks(const ModelSettings& settings, const ModelSetting& setting) {
  CPjtInterface projector;
  projector.SetChannel(std::make_shared<SimulatedProjector>(DescribeModel(settings.Model())));
  const auto read = [&] { return settings.Read(projector, setting); };
  const auto fresh = read();
  EXPECT_EQ(fresh.has_value(), setting.readable);
  for (const int value : ValuesOf(setting)) {
    EXPECT_EQ(settings.Change(projector, setting, value) == Sent::Accepted, setting.changeable)
        << value;
    EXPECT_EQ(setting.Allows(value), setting.changeable) << value;
    if (setting.Restorable()) {
      EXPECT_EQ(read(), value);
    }
  }
  for (const int other : OthersOf(setting)) EXPECT_FALSE(setting.Allows(other)) << other;
  if (setting.range) ExpectSteps(projector, settings, setting);
  if (setting.kind == Kind::Choice) {
    EXPECT_FALSE(setting.entries.empty());
    for (const int other : {setting.placeholder.value_or(12345), 12345}) {
      EXPECT_NE(settings.Change(projector, setting, other), Sent::Accepted);
    }
  }
  if (setting.reset) {
    EXPECT_TRUE(Perform(projector, *setting.reset).accepted);
    EXPECT_EQ(read(), setting.kind == Kind::State ? 0 : fresh) << "hours begin again";
  }
}

TEST(ModelSettings, EverySettingOfEveryModelWorksOnTheSimulationAndHasAUniqueKey) {
  for (const CModelInfo2& info : EveryModelAndAnUnknownOne()) {
    SCOPED_TRACE(NameOf(info));
    const ModelSettings settings(MakeModelData(info));
    for (const ModelSetting& setting : settings.All()) {
      SCOPED_TRACE(setting.key);
      EXPECT_EQ(settings.Find(setting.key), &setting) << "the key is another's too";
      if (const auto* row = std::get_if<ValueRow>(setting.row)) {
        EXPECT_EQ(row->stepsOnly, row->ids.slider == 0);
      }
      if (!kOneWay.contains(setting.key)) ExpectWorks(settings, setting);
    }
  }
}

// What is known of each setting without a projector, with the models for which it is so; then the
// settings that some lists of other lengths and values give.
TEST(ModelSettings, AreDescribedAsRecorded) {
  constexpr const char* kKinds[] = {"number", "choice", "state", "action"};
  std::map<std::string, std::string> models;
  for (const CModelInfo2& info : EveryModelAndAnUnknownOne()) {
    const ModelSettings settings(MakeModelData(info));
    for (const ModelSetting& setting : settings.All()) {
      std::ostringstream text;
      text << setting.key << ": " << kKinds[static_cast<std::size_t>(setting.kind)]
           << (setting.readable ? ", read" : "") << (setting.changeable ? ", changed" : "")
           << (setting.IsPerSource() ? ", of a source" : "") << ", caption " << setting.caption
           << ", tab " << setting.tab << ", bias " << setting.bias;
      if (setting.range) text << ", " << setting.range->minimum << " to " << setting.range->maximum;
      if (setting.reset) text << ", " << FormatCommand(setting.reset->Command(0, info.ModelCode));
      for (const ListEntry& one : setting.entries)
        text << ", " << one.value << '=' << one.text.value_or(0) << one.name;
      text << ", or " << setting.otherwise << '\n';
      models[text.str()] += ' ' + NameOf(info);
    }
    const ModelSettings bare(MakeModelData(MakeModel(info.DialogType, info.ModelCode)));
    for (const ModelSetting& setting : bare.All())
      if (setting.entries.empty() && !setting.readable)
        models["without entries not read: " + std::string(setting.key) + '\n'] +=
            ' ' + NameOf(info);
  }
  std::ostringstream now;
  for (const auto& [text, of] : models) now << text << of << '\n';
  const auto record = [&now](int type, int value, int count) {
    CModelInfo2 info = MakeModel(type, 1);
    for (int i = 0; i < count; ++i) AddEntry(info.GammaList, value, "");
    info.ColorTempList = info.GammaList;
    for (const char* name : {"Loud", "Normal", "Bright"}) AddEntry(info.WhisperList, 0, name);
    --info.WhisperList.count;
    now << "type " << type << ", value " << value << ", entries " << count << ':';
    const ModelSettings settings(MakeModelData(info));
    for (const char* key : {"gamma.point-1", "color-temp.gain-r", "setup.whisper"})
      if (const auto* found = settings.Find(key)) now << ' ' << key << ' ' << found->entries.size();
    now << '\n';
  };
  for (const int count : {0, 1, 3, 4}) record(4, 99, count);
  for (const int value : {16, 17, 21, 22}) record(5, value, 1);
  ExpectRecord(TEST_SOURCE_DIR "/settings/Described.txt", now.str());
}

TEST(ModelSettings, AnEntryWithTheValueMinusOneIsSentLikeAnyOther) {
  CModelInfo2 model = MakeModel(5, 44);
  AddEntry(model.ColorTempList, -1, "none");
  AddEntry(model.ColorTempList, 17, "custom");
  AddEntry(model.MyButtonList, -1, "none");
  const ModelSettings settings(MakeModelData(model));
  const auto channel = std::make_shared<RecordingChannel>();
  CPjtInterface projector;
  projector.SetChannel(channel);
  for (const auto& [key, sent] : {std::pair{"picture.color-temp", "Set 0x30B0 65535"},
                                  {"option.my-button-1", "SetMyButton1 -1"}}) {
    EXPECT_EQ(settings.Change(projector, *settings.Find(key), -1), Sent::Accepted) << key;
    EXPECT_EQ(channel->TakeChanges(), Strings{sent});
  }
  const auto& gain = std::get<ValueRow>(*settings.Find("color-temp.gain-r")->row);
  const auto step = [&](int known) { return Step(projector, gain, true, 0, {-8, 8}, known); };
  EXPECT_TRUE(step(0).unchanged) << "0 is its answer";
  EXPECT_EQ(step(-1).value, gain.bias);
  channel->AnswerResult("Get", 3);
  const auto& zoom = std::get<ValueRow>(*settings.Find("setup.d-zoom")->row);
  EXPECT_FALSE(Step(projector, zoom, true, 0, {0, 9}, 0).value)
      << "read as strictly as it is stepped";
  channel->Refuse("Inc");
  channel->TakeChanges();
  settings.Change(projector, *settings.Find("setup.d-shift-v"), 2);
  EXPECT_EQ(channel->TakeChanges().size(), 3) << "a refused step is tried again";
}

struct HearingProjector final : SimulatedProjector {
  void Announce(std::span<const PjtCommand> reads) override {
    announced.insert(announced.end(), reads.begin(), reads.end());
  }
  std::vector<PjtCommand> announced;
};

TEST(ModelSettings, ASettingOfASourceIsReadAndSentForTheSourceThatIsHeard) {
  CModelInfo2 info = MakeModel(5, 49);
  const ModelSettings open(MakeModelData(info));
  AddSource(info.MySourceList, 3, "A");
  const ModelSettings listed(MakeModelData(info));
  info.ModelCode = 46;
  const ModelSettings other(MakeModelData(info));
  const auto has = [](const ModelSettings& settings, const char* key, int source) {
    return settings.HasSource(*settings.Find(key), source);
  };
  EXPECT_TRUE(has(listed, "audio.volume", 3) && has(listed, "audio.volume", 15));
  EXPECT_FALSE(has(listed, "audio.volume", 4) || has(other, "audio.volume", 15));
  EXPECT_FALSE(has(listed, "audio.speaker", 3));
  EXPECT_TRUE(has(open, "audio.volume", 4)) << "the model does not list its inputs";
  EXPECT_FALSE(ModelSettings(MakeModelData(MakeModel(0, 49))).Input().changeable);
  EXPECT_EQ(listed.Input().key, "other.input-source");
  EXPECT_TRUE(ModelSettings(MakeModelData(MakeModel(4, 0))).Find("setup.volume")->IsPerSource());
  for (int model = 49; model <= 54; ++model)
    EXPECT_EQ(StandbySource(OfSource::Playing, model), 15) << model;

  constexpr std::optional<int> kNone;
  const std::tuple<int, int, int, std::optional<int>> cases[] = {
      {48, 0, 3, 3}, {49, 0, 3, 15}, {54, 2, 3, 15},     {49, 1, 3, 3},
      {50, 3, 3, 3}, {55, 0, 3, 3},  {49, 1, -1, kNone}, {46, 0, -1, kNone}};
  for (const auto& [model, power, input, source] : cases) {
    const auto simulated = std::make_shared<HearingProjector>();
    const auto channel = std::make_shared<FaultChannel>(simulated);
    CPjtInterface projector;
    projector.SetChannel(channel);
    simulated->SetCodeValue(CommandCode::RunningState, power);
    simulated->SetCodeValue(CommandCode::InputSource, input);
    EXPECT_EQ(AskSource(projector, OfSource::Playing, model), source) << model << ' ' << power;
    EXPECT_EQ(AskSource(projector, OfSource::None, model), 0);
    if (model != 49) continue;
    const ModelSetting& volume = *listed.Find("audio.volume");
    const ModelSetting& action =
        *std::ranges::find(listed.All(), Kind::Action, &ModelSetting::kind);
    EXPECT_EQ(listed.PresentSource(projector, volume), source);
    EXPECT_EQ(listed.PresentSource(projector, *listed.Find("audio.speaker")), kNone);
    EXPECT_EQ(listed.Change(projector, volume, 7), source ? Sent::Accepted : Sent::Nothing);
    EXPECT_EQ(listed.Read(projector, volume), source ? std::optional(7) : kNone);
    const auto sourced =
        listed.PrepareReads(projector, std::array{&volume, listed.Find("audio.speaker"), &action});
    EXPECT_EQ(sourced.front().source, source);
    std::vector<PjtCommand> reads{{PjtOperation::Get, CommandCode::RunningState},
                                  {PjtOperation::GetInputSource}};
    if (source) reads.push_back({PjtOperation::GetInputSrcVolume, 0, std::int16_t(*source)});
    reads.push_back({PjtOperation::GetSpeaker});
    EXPECT_EQ(simulated->announced, reads);
    channel->SetFault(CommandCode::RunningState, {.kind = Fault::Kind::Refuse});
    EXPECT_EQ(listed.PresentSource(projector, volume), kNone);
  }
}

// The result of each step from 10 towards 12, or likewise towards 8; no further step is made.
TEST(StepTo, EndsAtTheValueOrWhenStepsComeNoNearer) {
  constexpr Stepped kRefused{.refused = true, .value = 10};
  const std::vector<std::pair<std::vector<Stepped>, Sent>> cases{
      {{{.value = 11}, {.value = 12}}, Sent::Accepted},
      {{{.value = 11}, {.value = 11}}, Sent::Refused},
      {{{.value = 13}}, Sent::Refused},
      {{{}}, Sent::Refused},
      {{kRefused, kRefused, kRefused}, Sent::Refused},
      // The step was made, but its answer got lost.
      {{kRefused, kRefused, {.refused = true, .value = 11}, {.value = 12}}, Sent::Accepted},
      {{kRefused, kRefused, {.value = 11}, kRefused, kRefused, {.value = 12}}, Sent::Accepted},
  };
  for (const auto& [steps, sent] : cases) {
    for (const int sign : {1, -1}) {
      std::size_t made = 0;
      const auto step = [&, &steps = steps](bool upwards, int) {
        EXPECT_EQ(upwards, sign > 0);
        Stepped stepped = steps.at(made++);
        if (stepped.value) stepped.value = 10 + sign * (*stepped.value - 10);
        return stepped;
      };
      EXPECT_EQ(StepTo(10, 10 + 2 * sign, step, [] { return true; }), sent) << made;
      EXPECT_EQ(made, steps.size());
    }
  }
  for (const auto& [distance, refusals, steps, sent] :
       {std::tuple(kMostSteps, 0, kMostSteps, Sent::Accepted),
        {kMostSteps, 1, kMostSteps, Sent::Refused},
        {kMostSteps + 1, 0, 0, Sent::Nothing}}) {
    int made = 0;
    const auto step = [&, refusals = refusals](bool, int now) -> Stepped {
      const bool refused = made++ < refusals;
      return {.refused = refused, .value = refused ? now : now + 1};
    };
    EXPECT_EQ(StepTo(9, 9 + distance, step, [] { return true; }), sent);
    EXPECT_EQ(made, steps);
  }
}

TEST(Range, HasTwoDecimalsAroundTheFirstComma) {
  ExpectAnswers(TEST_SOURCE_DIR "/settings/Ranges.txt", [](const std::string& question) {
    const std::string text = question.substr(question.find(' ') + 1);
    const Range range = ParseRange(text, std::stoi(question), {12345, 12346});
    return range.minimum == 12345
               ? "no"
               : std::to_string(range.minimum) + " to " + std::to_string(range.maximum);
  });
}

}  // namespace
