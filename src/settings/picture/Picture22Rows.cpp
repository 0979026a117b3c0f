#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr ArrowIds kArrows{
    .up = 20031, .down = 20033, .left = 20034, .right = 20032, .fieldV = 20045, .fieldH = 20044};

// The same values are on a slider on the other position page.
constexpr auto kOverScans = NumberEntries<kOverScan.minimum, kOverScan.maximum>();

constexpr ResetEntry kResets[] = {
    {ListText::VPosition, Op::ExecVPosReset, 20045},
    {ListText::HPosition, Op::ExecHPosReset, 20044},
    {ListText::HSize, Op::ExecHSizeReset, 20040},
    // Model 15 does not show over scan but has it, so it can be reset.
    {ListText::Picture22OverScan, Op::ExecOverScanReset},
};

constexpr PageRow kRows[] = {
    PositionV("picture.position-v", kArrows),
    PositionH("picture.position-h", kArrows),
    CentredSlider("picture.h-phase", 49, {20801, 20036, 20802, 20038}, CommandCode::HPhase,
                  ErrorText::HPhaseRefused, RangeIndex::HPhase, kHPhase, kHPhaseTicks),
    SteppedField("picture.h-size", 50, {.minus = 20803, .plus = 20804, .field = 20040},
                 CommandCode::HSize, ErrorText::HSizeRefused),
    ListRow{"picture.over-scan",
            47,
            20030,
            kOverScans,
            Get(CommandCode::OverScan),
            Set(CommandCode::OverScan),
            {.error = ErrorText::OverScanRefused},
            NotOn(15)},
    ResetRow{"picture.position-reset", 20042, 20043, kResets},
};

}  // namespace

constinit const PageTable kPicture22Rows{.rows = kRows, .refusedIsReadBack = true};

}  // namespace AdvancedControl
