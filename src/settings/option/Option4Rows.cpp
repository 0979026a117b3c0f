#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

using Op = PjtOperation;

constexpr PageRow kRows[] = {
    shared::AutoSearch("option.auto-search", 20121),
    shared::AutoOn("option.auto-on", 20126),
    shared::AutoOff("option.auto-off", {20122, 20123, 20124, 20125}),
    ListRow{"option.auto-keystone", 18, 20127, kSwitch, Named(Op::GetAutoKeystone),
            Named(Op::SetAutoKeystone), kReadBack},
    shared::OneTouch("option.one-touch", 20138),
    shared::IpRemoteId("option.ip-remote-id", 20139),
};

}  // namespace

constinit const PageTable kOption4Rows{.rows = kRows};

}  // namespace AdvancedControl
