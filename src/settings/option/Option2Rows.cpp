#include "settings/PageTables.h"
#include "settings/SharedRows.h"

namespace AdvancedControl {

namespace {

// On these models the automatic functions have their own tab.
constexpr Presence kWithoutAutoTab = NotOn(6, 7);

template <class Row>
constexpr Row WithoutAutoTab(Row row) {
  row.on = kWithoutAutoTab;
  return row;
}

constexpr PageRow kRows[] = {
    shared::Volume("option.volume", {20130, 20131, 20132, 20133}),
    shared::Whisper("option.whisper", 20134),
    shared::Stereo("option.stereo", 20135),
    WithoutAutoTab(shared::AutoSearch("option.auto-search", 20121)),
    WithoutAutoTab(shared::AutoOff("option.auto-off", {20122, 20123, 20124, 20125})),
    shared::Language("option.language", 20136),
    shared::MenuColor("option.menu-color", 20137),
    shared::OneTouch("option.one-touch", 20138),
    shared::IpRemoteId("option.ip-remote-id", 20139),
};

}  // namespace

constinit const PageTable kOption2Rows{.rows = kRows};

}  // namespace AdvancedControl
