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

// clang-format off
constexpr PageRow kRows[] = {
    shared::Power(ControlId::Other::Power),
    shared::InputSource(ControlId::Other::InputSource),
    shared::Blank(20104),
    shared::Mute(20105),
    shared::Freeze(20106),
    ListRow{"other.lens-lock", 4203, 20107, kSwitch, Get(CommandCode::LensLock), Named(Op::SetLensLock), shared::kSilent},
    ListRow{"other.lens-type", 4204, 20108, kLensTypes, Get(CommandCode::LensType), Named(Op::SetLensType), shared::kSilent},
    ListRow{"other.screen-type", 4205, 20109, kScreenTypes, Get(CommandCode::ScreenType), Named(Op::SetScreenType), shared::kSilent},
    ListRow{"other.picture-position", 4206, 20110, kPicturePositions, Get(CommandCode::PicturePosition), Named(Op::SetPicturePosition), shared::kSilent},
};
// clang-format on

}  // namespace

constinit const PageTable kOther4Rows{.rows = kRows};

}  // namespace AdvancedControl
