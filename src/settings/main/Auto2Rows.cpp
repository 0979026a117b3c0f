#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

constexpr PageRow kRows[] = {
    shared::AutoAdjust("auto.adjust", 20120),
    shared::AutoSearch("auto.search", 20121),
    shared::AutoOff("auto.off", {20122, 20123, 20124, 20125}),
};

}  // namespace

constinit const PageTable kAuto2Rows{.rows = kRows};

}  // namespace AdvancedControl
