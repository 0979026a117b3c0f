// Who may connect to a projector, when, and how often: visits, and those who work on it.

#include <algorithm>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "fleet/MakeVisit.h"
#include "fleet/StatusItems.h"
#include "tests/fleet/SteppedFleet.h"

namespace {

using namespace std::chrono_literals;
using Projector = SteppedFleet::Projector;

TEST(FleetTurns, StaysAwayWhileSomebodyElseWorks) {
  SteppedFleet fleet;
  Projector& it = fleet.Add("a");
  Projector& other = fleet.Add("b");
  it.device.answers = 500ms;
  fleet.RunFor(1s);
  ASSERT_EQ(it.open, 1) << "in the middle of a visit";
  fleet.watcher.Pause("a");
  fleet.watcher.Pause("a");
  EXPECT_EQ(it.open, 0);
  fleet.states.Change("a", [](LiveState& state) { state.source = {32, "HDMI"}; });
  const auto learn = [&fleet](std::int16_t source) {
    fleet.states.Learn("a", {PjtOperation::Get, CommandCode::InputSource},
                       {.result = 1, .value = source}, {});
    return fleet.State("a").source;
  };
  EXPECT_EQ(learn(32), (PlayingSource{32, "HDMI"})) << "the name stays that of the same source";
  EXPECT_EQ(learn(31), (PlayingSource{31, ""}));
  fleet.states.Change("a", [](LiveState& state) { TakePower(state, PowerState::Standby); });
  EXPECT_EQ(learn(31), std::nullopt);
  fleet.states.Change("a", [](LiveState& state) { TakePower(state, PowerState::On); });
  fleet.watcher.Resume("a");
  fleet.RunFor(200s);
  EXPECT_EQ(it.connections.size(), 1);
  EXPECT_GE(other.connections.size(), 3);
  fleet.watcher.Resume("a");
  fleet.RunFor(6s);
  EXPECT_EQ(it.connections.size(), 2) << "what was changed is wanted soon";

  fleet.watcher.SetAsking(false);
  const auto asked = other.connections.size();
  fleet.RunFor(300s);
  EXPECT_EQ(it.connections.size() + other.connections.size(), 2 + asked);
  fleet.watcher.SetAsking(true);
  fleet.RunFor(10s);
  EXPECT_EQ(other.connections.size(), asked + 1);
  fleet.watcher.AskSoon("b");
  fleet.RunFor(10s);
  EXPECT_EQ(other.connections.size(), asked + 2);
  fleet.watcher.AskSoon("b");
  fleet.RunFor(1ms);
  fleet.watcher.AskSoon("b");
  fleet.RunFor(10s);
  EXPECT_EQ(other.connections.size(), asked + 4) << "the visit may have asked too early";
  fleet.watcher.Remove("b");
  EXPECT_FALSE(fleet.states.State("b"));
  fleet.RunFor(100s);
  EXPECT_EQ(other.connections.size(), asked + 4);
  fleet.Add("c");
  fleet.Add("d");
  fleet.RunFor(10s);
  for (const char* const id : {"a", "c", "d"}) {
    EXPECT_EQ(fleet.State(id).reachability, Reachability::Answers) << id;
  }
}

TEST(FleetTurns, TakesTurnsAtAnAddress) {
  SteppedFleet fleet({.interval = 1s});
  std::map<std::string, int> visits{{"one", 0}, {"same", 0}, {"again", 0}};
  for (const auto& [id, none] : visits) fleet.Add(id, "shared");
  Projector& it = fleet.projectors["shared"];
  it.device.answers = 500ms;  // so that a visit takes longer than the interval
  std::map<std::string, std::optional<WallTime>> answered;
  for (int second = 0; second < 120; ++second) {
    fleet.RunFor(1s);
    for (auto& [id, count] : visits) {
      const auto now = fleet.State(id).answered;
      if (std::exchange(answered[id], now) != now) ++count;
    }
  }
  EXPECT_EQ(it.mostConnections, 1);
  const auto [least, most] =
      std::ranges::minmax_element(visits, {}, &std::pair<const std::string, int>::second);
  EXPECT_GE(least->second, 5);
  EXPECT_LE(most->second, least->second + 1);

  // Whoever works on one of them works on all.
  while (it.open == 0) fleet.RunFor(1ms);
  fleet.watcher.Pause("one");
  EXPECT_EQ(it.open, 0);
  const auto asked = it.connections.size();
  fleet.RunFor(60s);
  EXPECT_EQ(it.connections.size(), asked);
  const Projector& elsewhere = fleet.Add("one", "elsewhere");
  fleet.RunFor(1s);
  EXPECT_EQ(it.connections.size(), asked + 1) << "the pause has moved along";
  EXPECT_EQ(elsewhere.connections.size(), 0);
  fleet.watcher.Resume("one");
  fleet.watcher.Pause("same");
  fleet.watcher.Remove("same");
  fleet.RunFor(30s);
  EXPECT_GT(it.connections.size(), asked + 2);
  EXPECT_GT(elsewhere.connections.size(), 1);
}

TEST(FleetTurns, LeavesNobodyOutOfManyThatAreSilent) {
  SteppedFleet fleet({.visitsAtOnce = 2000});
  for (int i = 0; i < 1100; ++i) fleet.Add(std::to_string(i)).isThere = false;
  fleet.RunFor(30s);
  for (const auto& [id, state] : fleet.states.States()) {
    EXPECT_EQ(state.reachability, Reachability::Silent) << id;
  }
}

TEST(FleetTurns, OneThatWaitsMayLeave) {
  SteppedFleet fleet({.visitsAtOnce = 1});
  Projector& it = fleet.Add("a");
  it.device.answers = 1s;
  while (it.open == 0) fleet.RunFor(1ms);
  const Projector &removed = fleet.Add("b"), &paused = fleet.Add("c");
  fleet.RunFor(1s);
  fleet.watcher.Remove("b");
  fleet.watcher.Pause("c");
  fleet.RunFor(100s);
  EXPECT_EQ(removed.connections.size() + paused.connections.size(), 0);
  fleet.watcher.Resume("c");
  fleet.RunFor(100s);
  EXPECT_GT(paused.connections.size(), 0);
}

TEST(FleetTurns, KnowsAnAddressHoweverItIsWritten) {
  const auto place = [](const char* host) {
    return PlaceOf({"a", PjLinkAddress{.host = host, .password = {}}}).first;
  };
  EXPECT_EQ(place("2001:DB8:0::7"), "2001:db8::7");
  EXPECT_EQ(place("::ffff:192.0.2.7"), "192.0.2.7");
  EXPECT_EQ(place("::FFFF:1:2:3"), "::ffff:1:2:3");
  EXPECT_EQ(place("Hall.example"), "hall.example");
}

TEST(FleetTurns, ANewIntervalCountsAtOnce) {
  SteppedFleet fleet({.interval = 1h, .jitter = 0});
  const Projector& it = fleet.Add("a");
  fleet.RunFor(30min);
  ASSERT_EQ(it.connections.size(), 1U);
  fleet.watcher.SetInterval(10min);
  fleet.RunFor(1s);
  EXPECT_EQ(it.connections.size(), 2U) << "the pause was over";
  fleet.RunFor(10min);
  EXPECT_EQ(it.connections.size(), 3U);
}

TEST(FleetTurns, AsksASilentOneLessAndLess) {
  SteppedFleet fleet;
  Projector& it = fleet.Add("a");
  it.isThere = false;
  fleet.RunFor(2h);
  ASSERT_GE(it.connections.size(), 11);
  constexpr std::chrono::minutes kLeast[] = {1min, 2min, 4min, 8min, 10min, 10min};
  for (std::size_t i = 0; i < std::size(kLeast); ++i) {
    const auto pause = it.connections[i + 1] - it.connections[i];
    EXPECT_GE(pause, kLeast[i]) << i;
    EXPECT_LE(pause, kLeast[i] * (1 + FleetPolicy().jitter)) << i;
  }
  it.isThere = true;
  fleet.RunFor(12min);
  EXPECT_EQ(fleet.State("a").reachability, Reachability::Answers);
  const auto asked = it.connections.size();
  fleet.RunFor(10min);
  EXPECT_GE(it.connections.size(), asked + 9) << "as usual again";
}

}  // namespace
