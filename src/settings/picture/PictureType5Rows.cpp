#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::Picture;

using Op = PjtOperation;

constexpr Range kRange{-32, 32};
// Sharpness has a different zero point.
constexpr int kSharpnessBias = 124;

constexpr ListEntry kActiveIris[] = {
    {ListText::Off, 0x00}, {ListText::IrisTheater, 0x10}, {ListText::IrisPresentation, 0x11}};

constexpr ResetEntry kResets[] = {
    {ListText::Brightness, Op::ExecBrightnessReset, Id::Brightness},
    {ListText::Contrast, Op::ExecContrastReset, Id::Contrast},
    {ListText::Color, Op::ExecColorReset, Id::Color},
    {ListText::Tint, Op::ExecTintReset, Id::Tint},
    {ListText::Sharpness, Op::ExecSharpnessReset, Id::Sharpness},
};

// A slider of this page, sent by its own setter. After a refused drag there is no message: the
// slider stays where the user moved it, and only the number field shows the projector's value.
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
  ValueRow row = Slider("picture.sharpness", 118,
                        {Id::SharpnessMinus, Id::Sharpness, Id::SharpnessPlus, Id::SharpnessField},
                        CommandCode::Sharpness, Op::SetSharpness, RangeIndex::Sharpness,
                        ErrorText::SharpnessRefused);
  row.bias = kSharpnessBias;
  row.range = Range{1, 7};
  row.ticks = 1;
  row.initial = 4;
  return row;
}

constexpr PageRow kRows[] = {
    Slider("picture.brightness", 73,
           {Id::BrightnessMinus, Id::Brightness, Id::BrightnessPlus, Id::BrightnessField},
           CommandCode::Brightness, Op::SetBrightness, RangeIndex::Brightness,
           ErrorText::BrightnessRefused),
    Slider("picture.contrast", 74,
           {Id::ContrastMinus, Id::Contrast, Id::ContrastPlus, Id::ContrastField},
           CommandCode::Contrast, Op::SetContrast, RangeIndex::Contrast,
           ErrorText::ContrastRefused),
    Slider("picture.color", 116, {Id::ColorMinus, Id::Color, Id::ColorPlus, Id::ColorField},
           CommandCode::Color, Op::SetColor, RangeIndex::Color, ErrorText::ColorRefused),
    Slider("picture.tint", 117, {Id::TintMinus, Id::Tint, Id::TintPlus, Id::TintField},
           CommandCode::Tint, Op::SetTint, RangeIndex::Tint, ErrorText::TintRefused),
    Sharpness(),
    ListRow{"picture.gamma", 41, Id::Gamma, GammaEntries, Get(CommandCode::Gamma),
            Named(Op::SetGamma), kGammaRules},
    ListRow{"picture.color-temp", 115, Id::ColorTemp, ColorTempEntries, Get(CommandCode::ColorTemp),
            Set(CommandCode::ColorTemp), kColorTempRules},
    // A mode without an entry does not change the row.
    ListRow{"picture.active-iris",
            128,
            Id::ActiveIris,
            kActiveIris,
            Get(CommandCode::ActiveIris),
            Set(CommandCode::ActiveIris),
            {.noEntry = NoEntry::Ignored, .error = ErrorText::ActiveIrisRefused},
            OnlyOn(30, 31, 41, 43, 46, 51, 52, 54)},
    ActionRow{"picture.my-memory",
              119,
              Id::MyMemoryExecute,
              Named(Op::SetMyMemory),
              Rereads::WhenDone,
              ActionList{Id::MyMemory, kMyMemories},
              {},
              0,
              ListText::MemoryDoneBase},
    ResetRow{"picture.reset", Id::Reset, Id::ResetExecute, kResets, Rereads::Always},
};

}  // namespace

constinit const PageTable kPictureType5Rows{.rows = kRows};

}  // namespace AdvancedControl
