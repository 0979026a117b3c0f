// The two pop-ups for the user's gamma curve and colour temperature.

#include "device/CommandCode.h"
#include "settings/CatalogNumbers.h"
#include "settings/ErrorNumbers.h"
#include "settings/PageTables.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr auto kPatterns = Numbered(ListText::PatternOff, ListText::PatternGrayScale9,
                                    ListText::PatternGrayScale15, ListText::PatternRamp);

constexpr ListRow Pattern(std::string_view key) {
  return {key,
          1029,
          20158,
          kPatterns,
          Get(CommandCode::TestPattern),
          Set(CommandCode::TestPattern),
          {.error = ErrorText::TestPatternRefused, .failedReadDisables = false}};
}

// − and + stop at the default range, whatever the model's slider range is.
constexpr ValueRow Row(std::string_view key, int caption, const ValueIds& ids, int code,
                       std::size_t rangeText, Range range, int ticks, int error) {
  return {.key = key,
          .caption = caption,
          .ids = ids,
          .code = static_cast<std::uint16_t>(code),
          .bias = CommandCode::kZeroPoint,
          .rangeText = static_cast<int>(rangeText),
          .range = range,
          .bounds = range,
          .ticks = ticks,
          .error = error};
}

constexpr ValueRow Point(std::string_view key, int index, const ValueIds& ids) {
  ValueRow row = Row(key, 1030 + index, ids, CommandCode::UserGammaPoint1 + index,
                     RangeIndex::GammaPoint + static_cast<std::size_t>(index), {-16, 16}, 2,
                     ErrorText::GammaPointRefusedBase + index);
  row.reset = RowReset{20336 + index, Named(Op::ExecUserGammaPReset, index + 1),
                       Named(Op::GetUserGammaPoint, index + 1)};
  return row;
}

constexpr PageRow kGamma[] = {
    Pattern("gamma.pattern"),
    Point("gamma.point-1", 0, {20160, 20181, 20161, 20162}),
    Point("gamma.point-2", 1, {20163, 21024, 20164, 20165}),
    Point("gamma.point-3", 2, {20166, 21025, 20167, 20168}),
    Point("gamma.point-4", 3, {20169, 21026, 20170, 20171}),
    Point("gamma.point-5", 4, {20172, 21027, 20173, 20174}),
    Point("gamma.point-6", 5, {20175, 21028, 20176, 20177}),
    Point("gamma.point-7", 6, {20178, 21029, 20179, 20180}),
    Point("gamma.point-8", 7, {20182, 21030, 20183, 20184}),
};

// `index` counts gain R, G, B, offset R, G, B.
constexpr ValueRow Adjust(std::string_view key, int index, int code, const ValueIds& ids, Op reset,
                          Op get) {
  const bool isGain = index < 3;
  const int channel = index % 3;
  ValueRow row = Row(key, 1020 + index, ids, code,
                     RangeIndex::ColorTempAdjust + static_cast<std::size_t>(index), {-32, 32}, 4,
                     ErrorText::ColorTempGainRRefused + index);
  row.down = Named(isGain ? Op::DecrementColorTempGain : Op::DecrementColorTempOffset, channel);
  row.up = Named(isGain ? Op::IncrementColorTempGain : Op::IncrementColorTempOffset, channel);
  row.reset = RowReset{20334 + index, Named(reset), Named(get)};
  return row;
}

constexpr int kGain = CommandCode::ColorTempGainR;
constexpr int kOffset = CommandCode::ColorTempOffsetR;
constexpr PageRow kColorTemp[] = {
    Pattern("color-temp.pattern"),
    Adjust("color-temp.gain-r", 0, kGain, {20182, 20181, 20188, 20194}, Op::ExecColorTempGainRReset,
           Op::GetColorTempGainR),
    Adjust("color-temp.gain-g", 1, kGain + 1, {20183, 21024, 20189, 20195},
           Op::ExecColorTempGainGReset, Op::GetColorTempGainG),
    Adjust("color-temp.gain-b", 2, kGain + 2, {20184, 21025, 20190, 20196},
           Op::ExecColorTempGainBReset, Op::GetColorTempGainB),
    Adjust("color-temp.offset-r", 3, kOffset, {20185, 21026, 20191, 20197},
           Op::ExecColorTempOffsetRReset, Op::GetColorTempOffsetR),
    Adjust("color-temp.offset-g", 4, kOffset + 1, {20186, 21027, 20192, 20198},
           Op::ExecColorTempOffsetGReset, Op::GetColorTempOffsetG),
    Adjust("color-temp.offset-b", 5, kOffset + 2, {20187, 21028, 20193, 20199},
           Op::ExecColorTempOffsetBReset, Op::GetColorTempOffsetB),
};

}  // namespace

constinit const PageTable kGammaRows{.rows = kGamma};
constinit const PageTable kColorTempRows{.rows = kColorTemp};

}  // namespace AdvancedControl
