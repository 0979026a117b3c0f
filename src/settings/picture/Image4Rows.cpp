#include "settings/PageTables.h"
#include "settings/SharedRows.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr ArrowIds kArrows{
    .up = 20202, .down = 20204, .left = 20201, .right = 20203, .fieldV = 20205, .fieldH = 20206};

constexpr ResetEntry kResets[] = {
    {ListText::OverScan, Op::ExecOverScanReset, 20047},
    {ListText::VPosition, Op::ExecVPosReset, 20205},
    {ListText::HPosition, Op::ExecHPosReset, 20206},
    {ListText::HSize, Op::ExecHSizeReset, 20212},
};

constexpr PageRow kRows[] = {
    // The projector expects an aspect's position, not its value.
    ListRow{"image.aspect",
            46,
            20200,
            AspectEntries,
            Get(CommandCode::Aspect),
            Named(Op::SetAspect),
            {.sendsPosition = true, .emptyIsNotRead = true}},
    PlainSlider("image.over-scan", 47, {20046, 20047, 20048, 20049}, CommandCode::OverScan,
                ErrorText::OverScanRefused, RangeIndex::OverScan, kOverScan),
    PositionV("image.position-v", kArrows),
    PositionH("image.position-h", kArrows),
    PlainSlider("image.h-phase", 49, {20207, 20209, 20208, 20210}, CommandCode::HPhase,
                ErrorText::HPhaseRefused, RangeIndex::HPhase, kImageHPhase, 4),
    SteppedField("image.h-size", 50, {.minus = 20211, .plus = 20213, .field = 20212},
                 CommandCode::HSize, ErrorText::HSizeRefused),
    // It changes the values of the rows above.
    shared::AutoAdjust("image.auto-adjust", 20215, Rereads::WhenDone),
    ResetRow{"image.reset", 20214, 20216, kResets},
};

}  // namespace

constinit const PageTable kImage4Rows{.rows = kRows};

}  // namespace AdvancedControl
