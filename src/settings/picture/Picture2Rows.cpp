#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr ArrowIds kArrows{
    .up = 21054, .down = 21055, .left = 21052, .right = 21053, .fieldV = 20021, .fieldH = 20022};

constexpr ResetEntry kResets[] = {
    {ListText::VPosition, Op::ExecVPosReset, 20021},
    {ListText::HPosition, Op::ExecHPosReset, 20022},
    {ListText::HSize, Op::ExecHSizeReset, 21109},
    {ListText::OverScan, Op::ExecOverScanReset, 21050},
};

constexpr PageRow kRows[] = {
    PositionV("picture.position-v", kArrows),
    PositionH("picture.position-h", kArrows),
    CentredSlider("picture.h-phase", 49, {20801, 21071, 20802, 21117}, CommandCode::HPhase,
                  ErrorText::HPhaseRefused, RangeIndex::HPhase, kHPhase, kHPhaseTicks),
    SteppedField("picture.h-size", 50, {.minus = 20803, .plus = 20804, .field = 21109},
                 CommandCode::HSize, ErrorText::HSizeRefused),
    CentredSlider("picture.over-scan", 47, {20805, 21050, 20806, 21115}, CommandCode::OverScan,
                  ErrorText::OverScanRefused, RangeIndex::OverScan, kOverScan, 1),
    ResetRow{"picture.position-reset", 21073, 21078, kResets},
};

}  // namespace

constinit const PageTable kPicture2Rows{.rows = kRows, .refusedIsReadBack = true};

}  // namespace AdvancedControl
