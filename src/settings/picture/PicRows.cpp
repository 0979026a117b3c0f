#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::Picture;

using Op = PjtOperation;

// "TV" is the same in every language.
constexpr ListEntry kProgressives[] = {
    {ListText::Off, 0}, {"TV", 1}, {ListText::LegacyProgressiveFilm, 2}};

// Brightness has different texts on this page, here and in its caption.
constexpr ResetEntry kResets[] = {
    {ListText::PicBrightness, Op::ExecBrightnessReset, Id::Brightness},
    {ListText::Contrast, Op::ExecContrastReset, Id::Contrast},
    {ListText::Color, Op::ExecColorReset, Id::Color},
    {ListText::Tint, Op::ExecTintReset, Id::Tint},
    {ListText::Sharpness, Op::ExecSharpnessReset, Id::Sharpness},
};

constexpr ValueRow Sharpness() {
  ValueRow row = CentredSlider(
      "picture.sharpness", 118,
      {Id::SharpnessMinus, Id::Sharpness, Id::SharpnessPlus, Id::SharpnessField},
      CommandCode::Sharpness, ErrorText::SharpnessRefused, RangeIndex::Sharpness, Range{1, 5}, 1);
  row.initial = 4;
  return row;
}

// Moving the brightness slider sends the generic `Set`, unlike on the newest picture page.
constexpr PageRow kRows[] = {
    CentredSlider("picture.brightness", 1073,
                  {Id::BrightnessMinus, Id::Brightness, Id::BrightnessPlus, Id::BrightnessField},
                  CommandCode::Brightness, ErrorText::BrightnessRefused, RangeIndex::Brightness),
    CentredSlider("picture.contrast", 74,
                  {Id::ContrastMinus, Id::Contrast, Id::ContrastPlus, Id::ContrastField},
                  CommandCode::Contrast, ErrorText::ContrastRefused, RangeIndex::Contrast),
    CentredSlider("picture.color", 116, {Id::ColorMinus, Id::Color, Id::ColorPlus, Id::ColorField},
                  CommandCode::Color, ErrorText::ColorRefused, RangeIndex::Color),
    CentredSlider("picture.tint", 117, {Id::TintMinus, Id::Tint, Id::TintPlus, Id::TintField},
                  CommandCode::Tint, ErrorText::TintRefused, RangeIndex::Tint),
    Sharpness(),
    ListRow{"picture.gamma", 41, Id::Gamma, GammaEntries, Get(CommandCode::Gamma),
            Named(Op::SetGamma), kGammaRules},
    ListRow{"picture.color-temp", 115, Id::ColorTemp, ColorTempEntries, Get(CommandCode::ColorTemp),
            Set(CommandCode::ColorTemp), kColorTempRules},
    ListRow{"picture.progressive",
            60,
            20145,
            kProgressives,
            Get(CommandCode::Progressive),
            Named(Op::SetProgressive),
            {},
            NotOn(9, 22)},
    // After success both read the page again. Success is any result but 0 for a memory, and 0 for a
    // reset.
    ActionRow{"picture.my-memory",
              119,
              Id::MyMemoryExecute,
              Named(Op::SetMyMemory),
              Rereads::WhenDone,
              ActionList{Id::MyMemory, kMyMemories},
              {},
              0,
              ListText::MemoryDoneBase},
    ResetRow{"picture.reset", Id::Reset, Id::ResetExecute, kResets, Rereads::WhenDone},
};

}  // namespace

constinit const PageTable kPicRows{.rows = kRows, .refusedIsReadBack = true};

}  // namespace AdvancedControl
