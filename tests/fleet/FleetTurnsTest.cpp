// Who may connect to a projector, when, and how often: visits, and those who work on it.

#include "fleet/MakeVisit.h"
#include "fleet/StatusItems.h"
#include "tests/fleet/SteppedFleet.h"

namespace {

using namespace std::chrono_literals;
using Projector = SteppedFleet::Projector;

TEST(FleetTurns, LearnsFromWhatOthersAreAnswered) {
  SteppedFleet fleet;
  fleet.Add("a").device.answers = 500ms;
  fleet.RunFor(20s);
  EXPECT_EQ(fleet.State("a").answerTime, 500ms);
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
}

TEST(FleetTurns, LeavesNobodyOutOfManyThatAreSilent) {
  SteppedFleet fleet({.visitsAtOnce = 1050, .history = 0});
  for (int i = 0; i < 1100; ++i) fleet.Add(std::to_string(i)).isThere = false;
  fleet.RunFor(1s);
  EXPECT_EQ(fleet.watcher.Tally().begun, 1050);
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

TEST(FleetTurns, AsksASilentOneLessAndLess) {
  SteppedFleet fleet;
  Projector& it = fleet.Add("a");
  it.isThere = false;
  fleet.RunFor(2h);
  ASSERT_GE(it.connections.size(), 11);
  EXPECT_EQ(fleet.State("a").steadySince, it.connections[0] + 2s);
  EXPECT_EQ(fleet.State("a").since, WallTime((it.connections[0] + 2s).time_since_epoch()));
  for (const bool answered : {false, true}) {
    fleet.states.Learn("a", {PjtOperation::SetPowerOn}, {.answered = answered}, {});
    EXPECT_EQ(fleet.State("a").reachability == Reachability::Answers, answered);
    EXPECT_EQ(fleet.State("a").connection == ConnectionState::Connected, answered);
  }
  constexpr std::chrono::minutes kLeast[] = {1min, 2min, 4min, 8min, 10min, 10min};
  for (std::size_t i = 0; i < std::size(kLeast); ++i) {
    const auto pause = it.connections[i + 1] - it.connections[i];
    EXPECT_GT(pause, kLeast[i]) << i;
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
