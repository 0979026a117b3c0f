#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr ResetEntry kResets[] = {
    {ListText::Brightness, Op::ExecBrightnessReset, 20101},
    {ListText::Contrast, Op::ExecContrastReset, 20105},
};

constexpr PageRow kRows[] = {
    shared::Brightness("main.brightness", {20100, 20101, 20102, 20103}),
    shared::Contrast("main.contrast", {20104, 20105, 20106, 20107}),
    shared::Aspect("main.aspect", 20108),
    shared::Whisper("main.whisper", 20109),
    shared::Mirror("main.mirror", 20110),
    ResetRow{"main.reset", 20111, 20112, kResets, Rereads::Always},
};

}  // namespace

constinit const PageTable kMainRows{.rows = kRows};

}  // namespace AdvancedControl
