#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

// "TV" stays in every language.
constexpr ListEntry kProgressives[] = {
    {ListText::Off, 0}, {"TV", 1}, {ListText::LegacyProgressiveFilm, 2}};

// The brightness of this page has texts of its own, here and as its caption.
constexpr ResetEntry kResets[] = {
    {ListText::PicBrightness, Op::ExecBrightnessReset, 20136},
    {ListText::Contrast, Op::ExecContrastReset, 20138},
    {ListText::Color, Op::ExecColorReset, 20151},
    {ListText::Tint, Op::ExecTintReset, 21062},
    {ListText::Sharpness, Op::ExecSharpnessReset, 20152},
};

constexpr ValueRow Sharpness() {
  ValueRow row =
      CentredSlider("picture.sharpness", 118, {20148, 20152, 20150, 20333}, CommandCode::Sharpness,
                    ErrorText::SharpnessRefused, RangeIndex::Sharpness, Range{1, 5}, 1);
  row.initial = 4;
  return row;
}

// Brightness too is dragged with the generic `Set`, unlike on the newest picture page.
// clang-format off
constexpr PageRow kRows[] = {
    CentredSlider("picture.brightness", 1073, {20134, 20136, 20135, 20329}, CommandCode::Brightness, ErrorText::BrightnessRefused, RangeIndex::Brightness),
    CentredSlider("picture.contrast", 74, {20137, 20138, 20139, 20330}, CommandCode::Contrast, ErrorText::ContrastRefused, RangeIndex::Contrast),
    CentredSlider("picture.color", 116, {20147, 20151, 20149, 20331}, CommandCode::Color, ErrorText::ColorRefused, RangeIndex::Color),
    CentredSlider("picture.tint", 117, {21061, 21062, 21063, 20332}, CommandCode::Tint, ErrorText::TintRefused, RangeIndex::Tint),
    Sharpness(),
    ListRow{"picture.gamma", 41, 20142, GammaEntries, Get(CommandCode::Gamma), Named(Op::SetGamma), kGammaRules},
    ListRow{"picture.color-temp", 115, 20144, ColorTempEntries, Get(CommandCode::ColorTemp), Set(CommandCode::ColorTemp), kColorTempRules},
    ListRow{"picture.progressive", 60, 20145, kProgressives, Get(CommandCode::Progressive), Named(Op::SetProgressive), {}, NotOn(9, 22)},
    // Both are followed by a reading when done, which a memory tells by any result but 0 and a reset by 0.
    ActionRow{"picture.my-memory", 119, 21065, Named(Op::SetMyMemory), Rereads::WhenDone, 21064, kMyMemories},
    ResetRow{"picture.reset", 20157, 21070, kResets, Rereads::WhenDone},
};
// clang-format on

}  // namespace

constinit const PageTable kPicRows{.rows = kRows, .refusedIsReadBack = true};

}  // namespace AdvancedControl
