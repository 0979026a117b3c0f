#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr ResetEntry kResets[] = {
    {ListText::Brightness, Op::ExecBrightnessReset, 20101},
    {ListText::Contrast, Op::ExecContrastReset, 20105},
    {ListText::Keystone, Op::ExecKeyStoneReset, 20115},
};

constexpr PageRow kRows[] = {
    shared::Brightness("main.brightness", {20100, 20101, 20102, 20103}),
    shared::Contrast("main.contrast", {20104, 20105, 20106, 20107}),
    shared::Aspect("main.aspect", 20108),
    ListRow{"main.gamma",
            41,
            20109,
            GammaEntries,
            Get(CommandCode::Gamma),
            Set(CommandCode::Gamma),
            {.refused = Refused::ReadsBack, .emptyIsNotRead = true}},
    ValueRow{.key = "main.keystone",
             .caption = 77,
             .ids = {20114, 20115, 20116, 20117},
             .code = CommandCode::Keystone,
             .bias = CommandCode::kZeroPoint,
             .range = Range{-128, 127},
             .ticks = 16,
             .error = ErrorText::KeystoneRefused},
    shared::Mirror("main.mirror", 20110),
    ResetRow{"main.reset", 20111, 20112, kResets, Rereads::Always},
};

}  // namespace

constinit const PageTable kMain2Rows{.rows = kRows};

}  // namespace AdvancedControl
