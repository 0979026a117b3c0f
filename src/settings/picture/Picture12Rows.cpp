#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr ResetEntry kResets[] = {
    {ListText::ColorBalR, Op::ExecColorBalRReset, 21067},
    {ListText::ColorBalB, Op::ExecColorBalBReset, 21042},
    {ListText::Sharpness, Op::ExecSharpnessReset, 21055},
    {ListText::Color, Op::ExecColorReset, 21058},
    {ListText::Tint, Op::ExecTintReset, 21061},
};

constexpr PageRow kRows[] = {
    CentredSlider("picture.color-bal-r", 125, {20801, 21067, 20802, 21122}, CommandCode::ColorBalR,
                  ErrorText::ColorBalRRefused, RangeIndex::ColorBalR, kColorBalance),
    CentredSlider("picture.color-bal-b", 127, {20803, 21042, 20804, 21124}, CommandCode::ColorBalB,
                  ErrorText::ColorBalBRefused, RangeIndex::ColorBalB, kColorBalance),
    CentredSlider("picture.sharpness", 118, {20805, 21055, 20806, 21125}, CommandCode::Sharpness,
                  ErrorText::SharpnessRefused, RangeIndex::Sharpness, Range{-6, 6}, 1),
    // The models of this page have the widest range of color.
    CentredSlider("picture.color", 116, {20807, 21058, 20808, 21126}, CommandCode::Color,
                  ErrorText::ColorRefused, RangeIndex::Color, Range{-63, 63}),
    CentredSlider("picture.tint", 117, {20809, 21061, 20810, 21127}, CommandCode::Tint,
                  ErrorText::TintRefused, RangeIndex::Tint),
    ResetRow{"picture.reset", 20029, 21069, kResets},
};

}  // namespace

constinit const PageTable kPicture12Rows{.rows = kRows, .refusedIsReadBack = true};

}  // namespace AdvancedControl
