#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr PageRow kRows[] = {
    shared::Volume("option.volume", {20130, 20131, 20132, 20133}),
    shared::Whisper("option.whisper", 20134),
    shared::AutoSearch("option.auto-search", 20121),
    shared::AutoOff("option.auto-off", {20122, 20123, 20124, 20125}),
    shared::Language("option.language", 20136),
    shared::MenuColor("option.menu-color", 20137),
    CheckRow{"option.ir-front", 81, 20140, Get(CommandCode::IrFront), Named(Op::SetIRFront)},
    CheckRow{"option.ir-rear", 82, 20141, Get(CommandCode::IrRear), Named(Op::SetIRRear)},
};

}  // namespace

constinit const PageTable kOption3Rows{.rows = kRows};

}  // namespace AdvancedControl
