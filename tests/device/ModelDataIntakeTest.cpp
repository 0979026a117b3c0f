#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "device/ModelDataIntake.h"

namespace {

/// A record in which every field has a different value.
CModelInfo2 NumberedRecord() {
  CModelInfo2 info;
  info.ModelName = "record";
  info.DialogType = 5;
  info.ModelCode = 42;
  info.ConnectionKinds = {0, 1, 2, 3, 4};
  info.ConnectionNumbers = {10, 11, 12, 13, 14};
  info.ConnectionParameters = {20, 21, 22, 23, 24};
  info.ModelWords = {2, 3};
  info.ModelWord = 1;
  info.ConnectionTexts1.back() = MakeNameSlot("last");
  info.ConnectionTexts2.back().fill('z');
  for (std::size_t slot = 0; slot < CModelInfo2::kRangeSlots; ++slot) {
    info.RangeSlots[slot] = std::to_string(956 + 4 * slot);
  }
  return info;
}

// The tests of the settings use the lists.
TEST(ModelDataIntakeTest, WordsAndRangesAreCopied) {
  const CModelInfo2 info = NumberedRecord();
  const ModelData data = MakeModelData(info);
  EXPECT_EQ(data.ModelWord, info.ModelWord);
  EXPECT_EQ(data.ModelWords, info.ModelWords);
  EXPECT_EQ(data.RangeTexts[RangeIndex::Brightness], "956");
  EXPECT_EQ(data.RangeTexts[RangeIndex::Bass], "1068");
}

TEST(ModelDataIntakeTest, ARecordGivesTheConnectionAtAnIndexAndAnItemItsOwn) {
  const CModelInfo2 info = NumberedRecord();
  EXPECT_EQ(MakeConnectionData(info, 0), (ConnectionData{0, 10, 20, "", ""}));
  EXPECT_EQ(MakeConnectionData(info, 4), (ConnectionData{4, 14, 24, "last", std::string(64, 'z')}));
  EXPECT_EQ(MakeConnectionData(info, -1), ConnectionData());
  EXPECT_EQ(MakeConnectionData(info, 5), ConnectionData());
  const CProjectorItem item{"item", 1, 2, 23, 0xC0FF0207, MakeNameSlot("second"), &info};
  EXPECT_EQ(MakeModelData(item).ModelName, "item");
  EXPECT_EQ(MakeModelData(item).ModelCode, 42);
  EXPECT_EQ(MakeConnectionData(item), (ConnectionData{1, 2, 23, "192.255.2.7", "second"}));
}

TEST(NameSlotTest, ATextIsCutBetweenCharacters) {
  EXPECT_EQ(NameText(MakeNameSlot(std::string(64, 'a'))), std::string(64, 'a'));
  const std::string twoBytes = std::string(63, 'a') + "\u00e9";
  EXPECT_EQ(NameText(MakeNameSlot(twoBytes)), std::string(63, 'a'));
  EXPECT_EQ(NameText(MakeNameSlot(twoBytes.substr(1))), twoBytes.substr(1));
  EXPECT_EQ(NameText(MakeNameSlot(std::string(65, '\x80'))), "") << "no character begins";
}

TEST(CountedListTest, AnyCountStaysInsideTheArrays) {
  CountedList list;
  SourceList sources;
  for (const auto& [count, size] : {std::pair{-3, 0}, {0, 0}, {16, 16}, {32, 32}, {33, 32}}) {
    list.count = sources.count = count;
    EXPECT_EQ(list.Size(), size);
    EXPECT_EQ(sources.Size(), std::min(size, 16));
  }
}

}  // namespace
