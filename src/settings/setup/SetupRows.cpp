#include "settings/LegacyRows.h"
#include "settings/PageTables.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr ModelCodes kWideModels{10, 47, 48};
constexpr Range kBalance{-32, 32};
constexpr PerModel<Range> kContrast{{-32, 32}, {8}, {-48, 48}};
constexpr PerModel<Range> kSharpness{{-8, 8}, kWideModels, {-6, 6}};
constexpr PerModel<Range> kColor{{-18, 18}, kWideModels, {-63, 63}};
constexpr PerModel<Range> kTint{{-18, 18}, kWideModels, {-14, 14}};

// − and + stop at the page's own bounds, whatever the model's slider range is.
constexpr ValueRow Bounded(PerModel<Range> bounds, ValueRow row) {
  row.bounds = bounds;
  return row;
}

// Intended: left increases and right decreases, unlike for the digital shift and the menu.
constexpr ArrowIds kArrows{
    .up = 20087, .down = 20089, .left = 20086, .right = 20088, .fieldV = 20090, .fieldH = 20091};

constexpr ResetEntry kResets[] = {
    {ListText::Brightness, Op::ExecBrightnessReset, 20079},
    {ListText::Contrast, Op::ExecContrastReset, 20083},
    {ListText::VPosition, Op::ExecVPosReset, 20090},
    {ListText::HPosition, Op::ExecHPosReset, 20091},
    {ListText::HSize, Op::ExecHSizeReset, 20097},
    {ListText::Sharpness, Op::ExecSharpnessReset, 21057},
    {ListText::Color, Op::ExecColorReset, 21060},
    {ListText::Tint, Op::ExecTintReset, 21063},
    {ListText::ColorBalR, Op::ExecColorBalRReset, 20104},
    {ListText::ColorBalB, Op::ExecColorBalBReset, 21043},
};

constexpr PageRow kRows[] = {
    Bounded(kBalance, CentredSlider("setup.brightness", 73, {20078, 20079, 20080, 20081},
                                    CommandCode::Brightness, ErrorText::BrightnessRefused,
                                    RangeIndex::Brightness)),
    // − and + of the contrast stop at the slider's bounds.
    CentredSlider("setup.contrast", 74, {20082, 20083, 20084, 20085}, CommandCode::Contrast,
                  ErrorText::ContrastRefused, RangeIndex::Contrast, kContrast),
    PositionV("setup.position-v", kArrows),
    PositionH("setup.position-h", kArrows),
    ValueRow{.key = "setup.h-phase",
             .caption = 49,
             .ids = {20092, 20093, 20094, 20095},
             .code = CommandCode::HPhase,
             .range = Range{0, 248},
             .ticks = 32,
             .error = ErrorText::HPhaseRefused},
    SteppedField("setup.h-size", 50, {20096, 0, 20098, 20097}, CommandCode::HSize,
                 ErrorText::HSizeRefused),
    Bounded(kSharpness, CentredSlider("setup.sharpness", 118, {21056, 21057, 21058, 20100},
                                      CommandCode::Sharpness, ErrorText::SharpnessRefused,
                                      RangeIndex::Sharpness, kSharpness, 1)),
    Bounded(kColor,
            CentredSlider("setup.color", 116, {21059, 21060, 21061, 20101}, CommandCode::Color,
                          ErrorText::ColorRefused, RangeIndex::Color, kColor)),
    Bounded(kTint, CentredSlider("setup.tint", 117, {21062, 21063, 21064, 20102}, CommandCode::Tint,
                                 ErrorText::TintRefused, RangeIndex::Tint, kTint)),
    Bounded(kBalance, CentredSlider("setup.color-balance-r", 125, {20103, 20104, 20105, 20106},
                                    CommandCode::ColorBalR, ErrorText::ColorBalRRefused,
                                    RangeIndex::ColorBalR)),
    Bounded(kBalance, CentredSlider("setup.color-balance-b", 127, {21042, 21043, 21068, 20107},
                                    CommandCode::ColorBalB, ErrorText::ColorBalBRefused,
                                    RangeIndex::ColorBalB)),
    // The projector expects the position in the model's list, but reports the value.
    ListRow{"setup.aspect",
            46,
            20099,
            AspectEntries,
            Get(CommandCode::Aspect),
            Named(Op::SetAspect),
            {.sendsPosition = true, .emptyIsNotRead = true}},
    ResetRow{"setup.reset", 21069, 21073, kResets},
};

}  // namespace

constinit const PageTable kSetupRows{kRows};

}  // namespace AdvancedControl
