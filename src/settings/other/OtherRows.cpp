#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

constexpr PageRow kRows[] = {
    shared::Power(ControlId::Other::Power),
    shared::InputSource(ControlId::Other::InputSource),
    shared::Blank(20104),
    shared::Mute(20105),
    shared::Freeze(20106),
};

}  // namespace

constinit const PageTable kOtherRows{.rows = kRows};

}  // namespace AdvancedControl
