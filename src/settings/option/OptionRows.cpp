#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

constexpr PageRow kRows[] = {
    shared::Volume("option.volume", {20130, 20131, 20132, 20133}),
    shared::Stereo("option.stereo", 20135),
    shared::Language("option.language", 20136),
    shared::MenuColor("option.menu-color", 20137),
    shared::OneTouch("option.one-touch", 20138),
    shared::IpRemoteId("option.ip-remote-id", 20139),
};

}  // namespace

constinit const PageTable kOptionRows{.rows = kRows};

}  // namespace AdvancedControl
