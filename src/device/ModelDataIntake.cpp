#include "device/ModelDataIntake.h"

#include <type_traits>

namespace AdvancedControl {

namespace {

/// The record with four-byte strings, as in the hosts' format.
using HostRecord = BasicModelInfo2<std::uint32_t>;
static_assert(std::is_standard_layout_v<HostRecord>);

constexpr std::size_t RangeOffset(std::size_t index) {
  return offsetof(HostRecord, RangeSlots) + 4 * std::size_t{kRangeTextOrder[index]};
}

static_assert(offsetof(HostRecord, ModelName) == 0);
static_assert(offsetof(HostRecord, DialogType) == 4);
static_assert(offsetof(HostRecord, ModelCode) == 8);
static_assert(offsetof(HostRecord, ConnectionKinds) == 12);
static_assert(offsetof(HostRecord, ConnectionNumbers) == 32);
static_assert(offsetof(HostRecord, ConnectionParameters) == 52);
static_assert(offsetof(HostRecord, ConnectionTexts1) == 72);
static_assert(offsetof(HostRecord, ConnectionTexts2) == 392);
static_assert(offsetof(HostRecord, ModelWords) == 716);
static_assert(offsetof(HostRecord, RangeSlots) == 956);
static_assert(offsetof(HostRecord, AspectList) == 1112);
static_assert(offsetof(HostRecord, WhisperList) == 3292);
static_assert(offsetof(HostRecord, ModelWord) == 5472);
static_assert(offsetof(HostRecord, GammaList) == 5476);
static_assert(offsetof(HostRecord, ColorTempList) == 7656);
static_assert(offsetof(HostRecord, MySourceList) == 9836);
static_assert(offsetof(HostRecord, MyButtonList) == 10992);
static_assert(sizeof(HostRecord) == 13172);

static_assert(offsetof(CountedList, values) == 4 && offsetof(CountedList, names) == 132);
static_assert(offsetof(SourceList, names) == 4 && offsetof(SourceList, firstValues) == 1028 &&
              offsetof(SourceList, secondValues) == 1092);

constexpr bool RangeOffsetsHold() {
  constexpr std::array<std::size_t, RangeIndex::Count> kOffsets{
      1080, 1008, 1012, 1016, 1020, 1024, 1028, 976,  980,  984,  988,  992,
      996,  1000, 1004, 1032, 1036, 956,  960,  1040, 1044, 1048, 1084, 1092,
      1096, 1100, 972,  964,  968,  1088, 1104, 1108, 1064, 1068};
  for (std::size_t index = 0; index < kOffsets.size(); ++index) {
    if (RangeOffset(index) != kOffsets[index]) return false;
  }
  return true;
}
static_assert(RangeOffsetsHold());

}  // namespace

ModelData MakeModelData(const CModelInfo2& info) {
  ModelData data{
      .ModelName = info.ModelName,
      .ModelCode = info.ModelCode,
      .DialogType = info.DialogType,
      .MySourceList = info.MySourceList,
      .WhisperList = info.WhisperList,
      .AspectList = info.AspectList,
      .GammaList = info.GammaList,
      .ColorTempList = info.ColorTempList,
      .MyButtonList = info.MyButtonList,
      .ModelWord = info.ModelWord,
      .ModelWords = info.ModelWords,
      .RangeTexts = {},
  };
  for (std::size_t index = 0; index < RangeIndex::Count; ++index) {
    data.RangeTexts[index] = info.RangeText(index);
  }
  return data;
}

ModelData MakeModelData(const CProjectorItem& item) {
  ModelData data = item.Model ? MakeModelData(*item.Model) : ModelData{};
  data.ModelName = item.Name;
  return data;
}

ConnectionData MakeConnectionData(const CModelInfo2& info, int index) {
  const auto entry = static_cast<std::size_t>(index);
  if (entry >= CModelInfo2::kConnections) return {};
  return {
      .Kind = info.ConnectionKinds[entry],
      .Number = info.ConnectionNumbers[entry],
      .Parameter = info.ConnectionParameters[entry],
      .Text1 = std::string(NameText(info.ConnectionTexts1[entry])),
      .Text2 = std::string(NameText(info.ConnectionTexts2[entry])),
  };
}

ConnectionData MakeConnectionData(const CProjectorItem& item) {
  return {
      .Kind = item.ConnectionKind,
      .Number = item.ConnectionNumber,
      .Parameter = item.ConnectionParameter,
      .Text1 = DottedAddress(item.Address),
      .Text2 = std::string(NameText(item.ConnectionText2)),
  };
}

std::string DottedAddress(std::uint32_t address) {
  std::string text;
  for (int shift = 24; shift >= 0; shift -= 8) {
    text += std::to_string((address >> shift) & 0xFF);
    if (shift > 0) text += '.';
  }
  return text;
}

}  // namespace AdvancedControl
