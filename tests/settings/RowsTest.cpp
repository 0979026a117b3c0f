// The rows of every model, used as a program without a window uses them, on the simulated
// projector: it says for itself what a projector does, so rows and simulation check each other.

#include <cstdlib>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "device/ModelDataIntake.h"
#include "settings/PageTables.h"
#include "settings/RowUse.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/Models.h"

namespace {

/// Every row that a model shows, its pop-ups' too.
std::vector<const PageRow*> RowsOf(const ModelData& model) {
  std::vector<const PageTable*> tables{&kStatusRows};
  for (const PageTab& tab : TabsOf(model.DialogType, model.ModelCode)) {
    tables.push_back(&TableOf(tab.page));
  }
  if (model.DialogType == 5) {
    tables.insert(tables.end(), {&kServiceRows, &kGammaRows, &kColorTempRows});
  }
  std::vector<const PageRow*> rows;
  for (const PageTable* table : tables) {
    if (KeepsTemplate(*table, model.ModelCode)) continue;
    for (std::size_t i = 0; i < table->rows.size(); ++i) {
      if (Has(*table, i, model.ModelCode)) rows.push_back(&table->rows[i]);
    }
  }
  return rows;
}

/// A row of a model on a simulated projector, fresh for each.
struct RowInUse {
  RowInUse(const PageRow& pageRow, const ModelData& modelData) : row(pageRow), model(modelData) {
    pjt.SetChannel(std::make_shared<SimulatedProjector>(DescribeModel(model)));
  }

  std::optional<int> Read() { return ReadRow(pjt, row, model); }
  // What is sent is read back, where it can be read.
  void ExpectArrives(int value, bool reads = true) {
    EXPECT_TRUE(SendRow(pjt, row, model, value)) << value;
    if (reads) {
      EXPECT_EQ(Read(), value);
    }
  }

  void ExpectWorks(const ListRow& list) {
    const std::vector<ListEntry> entries = list.entries.Of(model);
    ASSERT_FALSE(entries.empty());
    if (list.read) {
      const auto value = Read();
      ASSERT_TRUE(value) << "cannot be read";
      if (list.rules.noEntry != NoEntry::IsPosition) {
        EXPECT_GE(PositionOf(entries, *value), 0) << "a fresh projector's " << *value;
      }
    }
    if (!list.send) return;
    const int placeholder = list.rules.placeholder.Of(model.ModelCode);
    for (const ListEntry& entry : entries) {
      if (entry.value != placeholder) ExpectArrives(entry.value, list.read.has_value());
    }
    for (const int value : {placeholder, 12345}) EXPECT_FALSE(SendRow(pjt, row, model, value));
  }

  // Steps and positions arrive, inside the slider's range.
  void ExpectWorks(const ValueRow& value) {
    const auto first = Read();
    ASSERT_TRUE(first) << "cannot be read";
    const Stepped up = Step(pjt, value, model, true);
    const Stepped stepped = up.value && up.value != first ? up : Step(pjt, value, model, false);
    EXPECT_EQ(std::abs(stepped.value.value_or(*first) - *first), 1);
    EXPECT_EQ(Read(), stepped.value);
    if (const Call& reset = value.reset.call; value.reset.button != 0) {
      EXPECT_TRUE(Perform(pjt, reset).accepted);
      EXPECT_EQ(::Read(pjt, value.reset.read), Read());
      EXPECT_EQ(Read(), first);
    }
    if (value.ids.slider == 0) return;
    const Range range = SliderRange(value, model);
    EXPECT_LT(range.minimum, range.maximum);
    for (const int end : {range.minimum, range.maximum}) ExpectArrives(end + value.bias);
  }

  void ExpectWorks(const CheckRow&) {
    for (const int state : {0, 1}) ExpectArrives(state);
  }
  void ExpectWorks(const StateRow& state) {
    EXPECT_TRUE(Read());
    EXPECT_EQ(SendRow(pjt, row, model, 1), state.turnOn.has_value());
    EXPECT_EQ(SendRow(pjt, row, model, 0), state.turnOff.has_value());
  }
  void ExpectWorks(const ActionRow& action) { EXPECT_TRUE(Perform(pjt, action.call, 0).accepted); }
  void ExpectWorks(const ResetRow& resets) {
    for (const ResetEntry& reset : resets.entries) {
      EXPECT_TRUE(Perform(pjt, Named(reset.operation)).accepted) << reset.text;
    }
  }
  void ExpectWorks(const PopUpRow&) {}

  const PageRow& row;
  const ModelData& model;
  CPjtInterface pjt;
};

// Rows that do not read back what they send, for the reasons told in their tables.
const std::set<std::string_view> kOneWay{"image.color-temp"};

TEST(RowsTest, EveryRowOfEveryModelWorksOnTheSimulationAndHasAKeyOfItsOwn) {
  for (const CModelInfo2& info : EveryModel()) {
    const ModelData model = MakeModelData(info);
    SCOPED_TRACE(NameOf(info));
    std::set<std::string_view> keys;
    for (const PageRow* row : RowsOf(model)) {
      EXPECT_TRUE(keys.insert(KeyOf(*row)).second) << KeyOf(*row);
      if (kOneWay.contains(KeyOf(*row))) continue;
      SCOPED_TRACE(KeyOf(*row));
      std::visit([&](const auto& kind) { RowInUse(*row, model).ExpectWorks(kind); }, *row);
    }
    EXPECT_GE(keys.size(), 9U) << "the status page alone has nine";
  }
}

}  // namespace
