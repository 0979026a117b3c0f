#include "settings/PageTables.h"
#include "settings/input/InputLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr auto kDvis = Numbered("DVD", "Computer");

// The DVI row's caption is the same in every language.
constexpr PageRow kRows[] = {
    ListRow{"input.color-space", 54, 20222, kColorSpaces, Get(CommandCode::ColorSpace),
            Named(Op::SetColorSpace), kSendsPosition},
    ListRow{"input.component", 174, 20223, kComponents, Get(CommandCode::Component),
            Named(Op::SetComponent), kSendsPosition, NotOn(21, 29)},
    VideoFormatRow(20224),
    ListRow{"input.frame-lock", 59, 20225, kSwitch, Get(CommandCode::FrameLock),
            Named(Op::SetFrameLock), kSendsPosition, NotOn(9, 22, 27, 28)},
    ListRow{"input.dvi", 0, 21060, kDvis, Get(CommandCode::Dvi), Named(Op::SetDVI), kSendsPosition,
            NotOn(11, 12, 13, 21, 23, 24, 25, 26, 27, 28, 29)},
};

}  // namespace

constinit const PageTable kInput4Rows{kRows};

}  // namespace AdvancedControl
