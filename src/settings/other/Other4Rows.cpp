#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr auto kLensTypes =
    Numbered(ListText::LensStandard, ListText::LensShortThrow, ListText::LensLongThrow);
constexpr auto kScreenTypes = Numbered("4:3", "16:9", "16:10");
constexpr auto kPicturePositions =
    Numbered(ListText::PositionCenter, ListText::PositionTop, ListText::PositionBottom);

constexpr PageRow kRows[] = {
    shared::Power(ControlId::Other::Power),
    shared::InputSource(ControlId::Other::InputSource),
    shared::Blank(20104),
    shared::Mute(20105),
    shared::Freeze(20106),
    shared::Silent("other.lens-lock", 4203, 20107, kSwitch, CommandCode::LensLock, Op::SetLensLock),
    shared::Silent("other.lens-type", 4204, 20108, kLensTypes, CommandCode::LensType,
                   Op::SetLensType),
    shared::Silent("other.screen-type", 4205, 20109, kScreenTypes, CommandCode::ScreenType,
                   Op::SetScreenType),
    shared::Silent("other.picture-position", 4206, 20110, kPicturePositions,
                   CommandCode::PicturePosition, Op::SetPicturePosition),
};

}  // namespace

constinit const PageTable kOther4Rows{.rows = kRows};

}  // namespace AdvancedControl
