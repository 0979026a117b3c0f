#include "settings/PageTables.h"
#include "settings/setup/ScreenLists.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr auto kMyScreenSizes = Numbered(ListText::MyScreenSizeX1, ListText::MyScreenSizeFull);

constexpr ResetEntry kResets[] = {
    {ListText::MenuPositionV, Op::ExecMenuPositionVReset, 20021},
    {ListText::MenuPositionH, Op::ExecMenuPositionHReset, 20022},
};

// Every model has all rows. If it does not have a setting, the row is disabled.
constexpr PageRow kRows[] = {
    ListRow{"screen.blank", 38, 21085, kBlanks, Get(CommandCode::BlankColor),
            Named(Op::SetBlankColor), kBlankRules},
    ListRow{"screen.startup", 1039, 21086, kStartups, Get(CommandCode::Startup),
            Named(Op::SetStartup), kStartupRules},
    ListRow{"screen.my-screen-size", 1129, 21087, kMyScreenSizes, Get(CommandCode::MyScreenSize),
            Named(Op::SetMyScreenSize)},
    ListRow{"screen.my-screen-lock", 1130, 21088, kSwitch, Get(CommandCode::MyScreenLock),
            Named(Op::SetMyScreenLock)},
    // Left decreases, unlike for the picture on the setup page.
    MenuPosition("screen.menu-position-v", {21091, 0, 21089, 20021}, CommandCode::MenuPositionV),
    MenuPosition("screen.menu-position-h", {21090, 0, 21057, 20022}, CommandCode::MenuPositionH),
    ListRow{"screen.message", 131, 21092, kSwitch, Get(CommandCode::Message),
            Named(Op::SetMessage)},
    ResetRow{"screen.reset", 21094, 21093, kResets},
};

}  // namespace

constinit const PageTable kScreenRows{kRows};

}  // namespace AdvancedControl
