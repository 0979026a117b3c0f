#include <string>
#include <tuple>

#include <gtest/gtest.h>

#include "device/ModelDataIntake.h"

namespace {

/// A record whose every field tells where it stands.
CModelInfo2 NumberedRecord() {
  CModelInfo2 info;
  info.ModelName = "record";
  info.DialogType = 5;
  info.ModelCode = 42;
  int mark = 100;
  for (CountedList* list : {&info.WhisperList, &info.AspectList, &info.GammaList,
                            &info.ColorTempList, &info.MyButtonList}) {
    list->count = mark;
    list->values.back() = mark + 1;
    list->names.back() = MakeNameSlot(std::to_string(mark));
    mark += 10;
  }
  info.MySourceList.count = 16;
  info.MySourceList.secondValues.back() = 7;
  info.ModelWord = 1;
  info.ModelWords = {2, 3};
  for (std::size_t slot = 0; slot < CModelInfo2::kRangeSlots; ++slot) {
    info.RangeSlots[slot] = std::to_string(956 + 4 * slot);
  }
  for (std::size_t i = 0; i < CModelInfo2::kConnections; ++i) {
    const int number = static_cast<int>(i);
    info.ConnectionKinds[i] = number;
    info.ConnectionNumbers[i] = 10 + number;
    info.ConnectionParameters[i] = 20 + number;
    info.ConnectionTexts1[i] = MakeNameSlot("first " + std::to_string(i));
    info.ConnectionTexts2[i].fill('z');
  }
  return info;
}

TEST(ModelDataIntakeTest, EveryMemberIsCopied) {
  // Whole arrays, whatever the count.
  const auto members = [](const auto& of) {
    return std::tie(of.ModelName, of.DialogType, of.ModelCode, of.ModelWord, of.ModelWords,
                    of.MySourceList, of.WhisperList, of.AspectList, of.GammaList, of.ColorTempList,
                    of.MyButtonList);
  };
  const CModelInfo2 info = NumberedRecord();
  const ModelData data = MakeModelData(info);
  EXPECT_EQ(members(data), members(info));
  EXPECT_EQ(data.ModelCode, 42);
}

TEST(ModelDataIntakeTest, RangeTextsComeFromTheirPlacesInTheRecord) {
  const ModelData data = MakeModelData(NumberedRecord());
  using namespace RangeIndex;
  std::string places;
  for (const std::size_t index :
       {Brightness, Contrast, Color, Tint, Sharpness, GammaPoint, GammaPoint + 7, ColorTempAdjust,
        ColorTempAdjust + 5, KeystoneV, KeystoneH, Volume, Treble, Bass, AutoOff}) {
    places += data.RangeTexts[index] + ' ';
  }
  EXPECT_EQ(places, "956 960 964 968 972 976 1004 1008 1028 1040 1044 1048 1064 1068 1080 ");
}

TEST(ModelDataIntakeTest, AConnectionIsChosenByItsIndexAndAnItemBringsItsOwnWithItsName) {
  const CModelInfo2 info = NumberedRecord();
  for (const int index : {0, 4}) {
    EXPECT_EQ(MakeConnectionData(info, index),
              (ConnectionData{index, 10 + index, 20 + index, "first " + std::to_string(index),
                              std::string(64, 'z')}));
  }
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
}

TEST(CountedListTest, AnyCountStaysInsideTheArrays) {
  CountedList list;
  for (const auto& [count, size] : {std::pair{-3, 0}, {0, 0}, {32, 32}, {33, 32}}) {
    list.count = count;
    EXPECT_EQ(list.Size(), size);
  }
}

}  // namespace
