// How often a projector is asked that does not answer.

#include <gtest/gtest.h>

#include "tests/fleet/SteppedFleet.h"

namespace {

using namespace std::chrono_literals;

TEST(FleetPolicyTest, ANewIntervalCountsAtOnce) {
  SteppedFleet fleet({.interval = 1h, .jitter = 0});
  const SteppedFleet::Projector& it = fleet.Add("a");
  fleet.RunFor(30min);
  ASSERT_EQ(it.connections.size(), 1U);
  fleet.watcher.SetInterval(10min);
  fleet.RunFor(1s);
  EXPECT_EQ(it.connections.size(), 2U) << "the pause was over";
  fleet.RunFor(10min);
  EXPECT_EQ(it.connections.size(), 3U);
}

TEST(FleetPolicyTest, AsksASilentOneLessAndLess) {
  SteppedFleet fleet;
  SteppedFleet::Projector& it = fleet.Add("a");
  it.isThere = false;
  fleet.RunFor(2h);
  std::vector<double> minutes;
  for (std::size_t i = 1; i < it.connections.size(); ++i) {
    minutes.push_back(
        std::chrono::duration<double, std::ratio<60>>(it.connections[i] - it.connections[i - 1])
            .count());
  }
  ASSERT_GE(minutes.size(), 10);
  const double least[] = {1, 2, 4, 8, 10, 10};
  for (std::size_t i = 0; i < std::size(least); ++i) {
    EXPECT_GE(minutes[i], least[i]);
    EXPECT_LE(minutes[i], least[i] * (1 + FleetPolicy().jitter));
  }
  it.isThere = true;
  fleet.RunFor(12min);
  EXPECT_EQ(fleet.State("a").reachability, Reachability::Answers);
  const auto asked = it.connections.size();
  fleet.RunFor(10min);
  EXPECT_GE(it.connections.size(), asked + 9) << "as usual again";
}

}  // namespace
