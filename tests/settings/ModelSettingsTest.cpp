// Uses every setting of every model as a program without a window does, on the simulated projector.
// The simulation defines independently what a projector does, so settings and simulation check each
// other.

#include <set>

#include <gtest/gtest.h>

#include "device/ModelDataIntake.h"
#include "settings/ModelSettings.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/Models.h"

namespace {

using Kind = ModelSetting::Kind;

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
    if (setting.Restorable()) {
      EXPECT_EQ(read(), value);
    }
  }
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
  for (const CModelInfo2& info : EveryModel()) {
    SCOPED_TRACE(NameOf(info));
    const ModelSettings settings(MakeModelData(info));
    EXPECT_GE(settings.All().size(), 9U) << "the status page alone has nine";
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

TEST(ModelSettings, AnEntryWithTheValueMinusOneIsSentLikeAnyOther) {
  CModelInfo2 model = MakeModel(5, 49);
  AddEntry(model.ColorTempList, -1, "none");
  AddEntry(model.MyButtonList, -1, "none");
  const ModelSettings settings(MakeModelData(model));
  struct Accepting final : ProjectorChannel {
    PjtReply Execute(const PjtCommand& command) override {
      sent = command;
      return {.result = 1};
    }
    PjtCommand sent;
  };
  const auto channel = std::make_shared<Accepting>();
  CPjtInterface projector;
  projector.SetChannel(channel);
  for (const char* key : {"picture.color-temp", "option.my-button-1"}) {
    EXPECT_EQ(settings.Change(projector, *settings.Find(key), -1), Sent::Accepted) << key;
    EXPECT_EQ(channel->sent.first, -1);
  }
}

// The result of each step from 10 towards 12; no further step is made.
TEST(StepTo, EndsAtTheValueOrWhenStepsComeNoNearer) {
  struct Case {
    std::vector<Stepped> steps;
    Sent sent;
  };
  constexpr Stepped kRefused{.refused = true, .value = 10};
  const std::vector<Case> cases{
      {{{.value = 11}, {.value = 12}}, Sent::Accepted},
      {{{.value = 11}, {.value = 11}}, Sent::Refused},
      {{{.value = 13}}, Sent::Refused},
      {{{}}, Sent::Refused},
      {{kRefused, kRefused, kRefused}, Sent::Refused},
      // The step was made, but its answer got lost.
      {{kRefused, kRefused, {.refused = true, .value = 11}, {.value = 12}}, Sent::Accepted},
  };
  for (const Case& one : cases) {
    std::size_t made = 0;
    const auto step = [&made, &one](bool upwards, int) {
      EXPECT_TRUE(upwards);
      return one.steps.at(made++);
    };
    EXPECT_EQ(StepTo(10, 12, step, [] { return true; }), one.sent) << made;
    EXPECT_EQ(made, one.steps.size());
  }
}

}  // namespace
