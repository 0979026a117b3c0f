#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr Range kRange{-32, 32};
// Sharpness has a zero point of its own.
constexpr int kSharpnessBias = 124;

constexpr ListEntry kActiveIris[] = {
    {ListText::Off, 0x00}, {ListText::IrisTheater, 0x10}, {ListText::IrisPresentation, 0x11}};

constexpr ResetEntry kResets[] = {
    {ListText::Brightness, Op::ExecBrightnessReset, 20136},
    {ListText::Contrast, Op::ExecContrastReset, 20138},
    {ListText::Color, Op::ExecColorReset, 20151},
    {ListText::Tint, Op::ExecTintReset, 21062},
    {ListText::Sharpness, Op::ExecSharpnessReset, 20152},
};

// A slider of this page, sent by its own setter. A refused drag stays quiet: the slider keeps the
// place the user gave it and only the number field tells the projector's value.
constexpr ValueRow Slider(std::string_view key, int caption, const ValueIds& ids,
                          std::uint16_t code, Op set, int rangeText, int error) {
  return {.key = key,
          .caption = caption,
          .ids = ids,
          .code = code,
          .set = Named(set),
          .bias = CommandCode::kZeroPoint,
          .rangeText = rangeText,
          .range = kRange,
          .ticks = 4,
          .refusedDrag = RefusedDrag::Stays,
          .error = error};
}

constexpr ValueRow Sharpness() {
  ValueRow row =
      Slider("picture.sharpness", 118, {20148, 20152, 20150, 20333}, CommandCode::Sharpness,
             Op::SetSharpness, RangeIndex::Sharpness, ErrorText::SharpnessRefused);
  row.bias = kSharpnessBias;
  row.range = Range{1, 7};
  row.ticks = 1;
  row.initial = 4;
  return row;
}

// clang-format off
constexpr PageRow kRows[] = {
    Slider("picture.brightness", 73, {20134, 20136, 20135, 20329}, CommandCode::Brightness, Op::SetBrightness, RangeIndex::Brightness, ErrorText::BrightnessRefused),
    Slider("picture.contrast", 74, {20137, 20138, 20139, 20330}, CommandCode::Contrast, Op::SetContrast, RangeIndex::Contrast, ErrorText::ContrastRefused),
    Slider("picture.color", 116, {20147, 20151, 20149, 20331}, CommandCode::Color, Op::SetColor, RangeIndex::Color, ErrorText::ColorRefused),
    Slider("picture.tint", 117, {21061, 21062, 21063, 20332}, CommandCode::Tint, Op::SetTint, RangeIndex::Tint, ErrorText::TintRefused),
    Sharpness(),
    ListRow{"picture.gamma", 41, 20142, GammaEntries, Get(CommandCode::Gamma), Named(Op::SetGamma), kGammaRules},
    ListRow{"picture.color-temp", 115, 20144, ColorTempEntries, Get(CommandCode::ColorTemp), Set(CommandCode::ColorTemp), kColorTempRules},
    // A mode that the list does not know leaves the row as it was.
    ListRow{"picture.active-iris", 128, 20293, kActiveIris, Get(CommandCode::ActiveIris), Set(CommandCode::ActiveIris), {.noEntry = NoEntry::Ignored, .error = ErrorText::ActiveIrisRefused}, OnlyOn(30, 31, 41, 43, 46, 51, 52, 54)},
    ActionRow{"picture.my-memory", 119, 21065, Named(Op::SetMyMemory), Rereads::WhenDone, 21064, kMyMemories},
    ResetRow{"picture.reset", 20157, 21070, kResets, Rereads::Always},
};
// clang-format on

}  // namespace

constinit const PageTable kPictureType5Rows{.rows = kRows};

}  // namespace AdvancedControl
