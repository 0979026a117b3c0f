#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

constexpr PageRow kRows[] = {
    shared::Power(20102), shared::InputSource(20103), shared::Blank(20104),
    shared::Mute(20105),  shared::Freeze(20106),
};

}  // namespace

constinit const PageTable kOtherRows{.rows = kRows};

}  // namespace AdvancedControl
