// Who visits a projector that also has a dialog.

#include <optional>

#include "app/desktop/projectors/FleetWatch.h"
#include "fleet/AddressHold.h"
#include "fleet/MakeVisit.h"
#include "tests/app/Work.h"
#include "tests/fleet/Served.h"

namespace {

using namespace std::chrono_literals;

TEST(FleetWatch, DoesNotVisitWhileADialogIsOpenOrItsChannelConnected) {
  Served served, other;
  const FleetProfile a = Profile("A", ProjectorLink::PjLink, served.pjLink.Port());
  const FleetProfile b = Profile("B", ProjectorLink::PjLink, other.pjLink.Port());
  FleetWatch watch({.interval = 200ms, .longestPause = 200ms, .soonest = 200ms});
  watch.SetProfiles({a, b});
  const auto answered = [&watch](const FleetProfile& at) {
    return watch.Projectors().State(FleetIdOf(at))->answered;
  };
  const auto othersAreVisited = [&] {
    const auto before = answered(a);
    for (int i = 0; i < 3; ++i) {
      const auto last = answered(b);
      EXPECT_TRUE(Soon([&] { return answered(b) != last; }));
    }
    return answered(a) == before;
  };
  ASSERT_TRUE(Soon([&] { return answered(a) && answered(b); }));
  watch.LeaveToDialog(FleetIdOf(a));
  EXPECT_TRUE(othersAreVisited());
  std::optional<AddressHold> channel(PlaceOf(TargetOf(a)));
  watch.TakeBack(FleetIdOf(a));
  EXPECT_TRUE(othersAreVisited());
  const auto before = answered(a);
  channel.reset();
  EXPECT_TRUE(Soon([&] { return answered(a) != before; }));
}

}  // namespace
