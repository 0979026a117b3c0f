// The rows of every model, used as a program without a window uses them, on the simulated
// projector: it says for itself what a projector does, so rows and simulation check each other.

#include <set>
#include <string>

#include <gtest/gtest.h>

#include "device/ModelDataIntake.h"
#include "settings/PageTables.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/Models.h"

namespace {

void ForEachModel(const auto& check) {
  for (const CModelInfo2& model : EveryModel()) {
    SCOPED_TRACE(NameOf(model));
    check(MakeModelData(model));
  }
}

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

/// A simulated projector of the model, fresh for each row.
struct Projector {
  explicit Projector(const ModelData& model) {
    pjt.SetChannel(std::make_shared<SimulatedProjector>(DescribeModel(model)));
  }
  CPjtInterface pjt;
};

// What a list sends is read back, entry by entry.
void ExpectListWorks(const ListRow& row, const ModelData& model) {
  Projector projector(model);
  const std::vector<ListEntry> entries = row.entries.Of(model);
  ASSERT_FALSE(entries.empty());
  if (row.read) {
    const auto value = Read(projector.pjt, *row.read);
    ASSERT_TRUE(value) << "cannot be read";
    if (row.rules.noEntry != NoEntry::IsPosition) {
      EXPECT_GE(PositionOf(entries, *value), 0) << "a fresh projector's " << *value;
    }
  }
  if (!row.send) return;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const int sent = row.rules.sendsPosition ? static_cast<int>(i) : entries[i].value;
    EXPECT_TRUE(Perform(projector.pjt, *row.send, sent, model.ModelCode).accepted) << sent;
    if (row.read) {
      EXPECT_EQ(Read(projector.pjt, *row.read), entries[i].value) << "entry " << i;
    }
  }
}

// Steps and positions arrive, inside the slider's range.
void ExpectValueWorks(const ValueRow& row, const ModelData& model) {
  Projector projector(model);
  const auto first = Read(projector.pjt, row.Reading());
  ASSERT_TRUE(first) << "cannot be read";
  const auto step = [&](bool upwards) {
    const Call call = row.Stepping(upwards);
    return Perform(projector.pjt, call, *Read(projector.pjt, row.Reading())).accepted;
  };
  EXPECT_TRUE(step(true) || step(false));
  EXPECT_NE(Read(projector.pjt, row.Reading()), first);
  if (row.ids.slider == 0) return;
  const Range range = SliderRange(row, model);
  EXPECT_LT(range.minimum, range.maximum);
  for (const int position : {range.minimum, range.maximum}) {
    const int value = position + row.bias;
    EXPECT_TRUE(Perform(projector.pjt, row.Setting(), value).accepted) << position;
    EXPECT_EQ(Read(projector.pjt, row.Reading()), value);
  }
}

void ExpectWorks(const CheckRow& row, const ModelData& model) {
  Projector projector(model);
  for (const int state : {0, 1}) {
    EXPECT_TRUE(Perform(projector.pjt, row.send, state).accepted);
    EXPECT_EQ(Read(projector.pjt, row.read), state);
  }
}

void ExpectWorks(const ListRow& row, const ModelData& model) { ExpectListWorks(row, model); }
void ExpectWorks(const ValueRow& row, const ModelData& model) { ExpectValueWorks(row, model); }
void ExpectWorks(const ActionRow& row, const ModelData& model) {
  Projector projector(model);
  EXPECT_TRUE(Perform(projector.pjt, row.call, 0).accepted);
}
void ExpectWorks(const ResetRow& row, const ModelData& model) {
  Projector projector(model);
  for (const ResetEntry& reset : row.entries) {
    EXPECT_TRUE(Perform(projector.pjt, Named(reset.operation)).accepted) << reset.text;
  }
}
void ExpectWorks(const OwnRow& row, const ModelData& model) {
  Projector projector(model);
  if (row.read) {
    EXPECT_TRUE(Read(projector.pjt, *row.read));
  }
}

// Rows that do not read back what they send, for the reasons told in their tables.
const std::set<std::string_view> kOneWay{"image.color-temp"};

TEST(RowsTest, EveryRowOfEveryModelWorksOnTheSimulation) {
  ForEachModel([](const ModelData& model) {
    for (const PageRow* row : RowsOf(model)) {
      if (kOneWay.contains(KeyOf(*row))) continue;
      SCOPED_TRACE(KeyOf(*row));
      std::visit([&](const auto& kind) { ExpectWorks(kind, model); }, *row);
    }
  });
}

TEST(RowsTest, EveryRowHasAKeyOfItsOwn) {
  ForEachModel([](const ModelData& model) {
    std::set<std::string_view> keys;
    for (const PageRow* row : RowsOf(model)) {
      EXPECT_TRUE(keys.insert(KeyOf(*row)).second) << KeyOf(*row);
    }
    EXPECT_GE(keys.size(), 9U) << "the status page alone has nine";
  });
}

TEST(RowsTest, NoTableUsesAControlTwice) {
  for (std::size_t page = 0; page < kPageCount; ++page) {
    std::set<int> controls;
    for (const PageRow& row : TableOf(static_cast<PageId>(page)).rows) {
      EXPECT_TRUE(controls.insert(ControlOf(row)).second) << KeyOf(row);
    }
  }
}

}  // namespace
