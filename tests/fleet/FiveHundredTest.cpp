// A large fleet in which something happens all the time, in a time of its own.

#include <array>
#include <map>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "tests/fleet/SteppedFleet.h"

namespace {

using namespace std::chrono_literals;
using Projector = SteppedFleet::Projector;

// What a visit tells of a projector that stays as it is.
Reachability Expected(const Projector& it, const FleetPolicy& policy) {
  if (!it.isThere || it.isRefusing || it.device.answers > policy.answer) {
    return Reachability::Silent;
  }
  const bool isLocked = !it.wire && it.device.greeting != BadProjector().greeting;
  return isLocked ? Reachability::WrongPassword : Reachability::Answers;
}

std::optional<PowerState> PowerOf(const Projector& it) {
  if (!it.wire) return PjLink::Power(it.device.states.at("POWR"));
  constexpr std::array kStates{PowerState::Standby, PowerState::On, PowerState::CoolingDown};
  return kStates.at(static_cast<std::size_t>(it.wire->values.at(CommandCode::RunningState)));
}

// They appear, fall silent, come back, refuse, want another password, change their address, and
// answer late or too late.
TEST(FiveHundred, AreToldTrulyAndAskedPolitely) {
  constexpr int kCount = 500;
  FleetPolicy policy;
  policy.visitsAtOnce = 50;
  SteppedFleet fleet(policy);
  std::mt19937 random(7);
  const auto chance = [&](unsigned of) { return random() % of == 0; };
  std::map<std::string, std::string> hosts;  // by identity
  for (int i = 0; i < kCount; ++i) {
    const std::string id = "p" + std::to_string(i);
    hosts[id] = id;
    Projector& it = i % 4 == 0 ? fleet.AddWire(id) : fleet.Add(id);
    it.isThere = !chance(5);
  }
  for (int round = 0; round < 10; ++round) {
    for (auto& [id, host] : hosts) {
      if (!chance(50)) continue;
      Projector& before = fleet.projectors[host];
      before.isThere = false;
      host += '\'';
      if (before.wire) {
        fleet.projectors[host].wire = std::make_shared<WireDevice>();
        fleet.watcher.Set({id, TcpAddress{.host = host}});
      } else {
        fleet.projectors[host];
        fleet.watcher.Set({id, PjLinkAddress{.host = host, .password = {}}});
      }
    }
    for (auto& [host, it] : fleet.projectors) {
      if (chance(4)) it.isThere = !it.isThere;
      it.isRefusing = chance(20);
      it.device.answers = chance(10) ? 1900ms : chance(20) ? 2500ms : 10ms;
      it.device.greeting = chance(20) ? "PJLINK ERRA\r" : BadProjector().greeting;
      it.device.states["POWR"] = std::string(1, static_cast<char>('0' + random() % 4));
      if (it.wire) it.wire->values[CommandCode::RunningState] = static_cast<int>(random() % 3);
    }
    // Longer than the longest pause with its jitter, and all that wait in line.
    fleet.RunFor(round % 5 == 4 ? 900s : 61s);
    if (round % 5 != 4) continue;
    for (const auto& [id, host] : hosts) {
      const Projector& it = fleet.projectors[host];
      const LiveState state = fleet.State(id);
      const Reachability expected = Expected(it, policy);
      EXPECT_EQ(state.reachability, expected) << host;
      EXPECT_EQ(state.power, expected == Reachability::Answers ? PowerOf(it) : std::nullopt)
          << host;
    }
  }
  for (const auto& [host, it] : fleet.projectors) {
    EXPECT_LE(it.mostConnections, 1) << host;
    // What loses its connection is connected to again, but a visit does not take long.
    std::optional<SessionTime> visited;
    SessionTime last{};
    for (const SessionTime time : it.connections) {
      if (visited && time < std::exchange(last, time) + 20s) continue;
      EXPECT_TRUE(!visited || time >= *visited + policy.interval) << host;
      visited = last = time;
    }
  }
  EXPECT_GT(fleet.watcher.Tally().answered, 10 * kCount);
  fleet.watcher.SetAsking(false);
  const FleetTally tally = fleet.watcher.Tally();
  EXPECT_EQ(tally.begun, tally.answered + tally.unanswered + tally.abandoned);
}

}  // namespace
