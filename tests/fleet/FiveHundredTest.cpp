// A large fleet in which something happens all the time, in a time of its own.

#include <array>
#include <random>

#include "tests/fleet/SteppedFleet.h"

namespace {

using namespace std::chrono_literals;
using Projector = SteppedFleet::Projector;

// What a visit finds at a projector that does not change.
Reachability Expected(const Projector& it, const FleetPolicy& policy) {
  if (!it.isThere || it.isRefusing) return Reachability::Silent;
  const bool isLocked = !it.wire && it.device.greeting != BadProjector().greeting;
  if (isLocked) return Reachability::WrongPassword;  // the greeting says so, and is never late
  return it.device.answers > policy.answer ? Reachability::Silent : Reachability::Answers;
}

std::optional<PowerState> PowerOf(const Projector& it) {
  if (!it.wire) return PjLink::Power(it.device.states.at("POWR"));
  constexpr std::array kStates{PowerState::Standby, PowerState::On, PowerState::CoolingDown};
  return kStates.at(static_cast<std::size_t>(it.wire->values.at(CommandCode::RunningState)));
}

std::optional<int> SourceOf(const Projector& it) {
  if (PowerOf(it) == PowerState::Standby) return std::nullopt;
  return it.wire ? it.wire->values.at(CommandCode::InputSource)
                 : PjLink::InputNumber(it.device.states.at("INPT"));
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
      before.wire ? fleet.AddWire(id, host) : fleet.Add(id, host);
    }
    for (auto& [host, it] : fleet.projectors) {
      if (chance(4)) it.isThere = !it.isThere;
      it.isRefusing = chance(20);
      it.device.answers = chance(10) ? 1900ms : chance(20) ? 2500ms : 10ms;
      it.device.greeting = chance(20) ? "PJLINK ERRA\r" : BadProjector().greeting;
      it.device.states["POWR"] = std::string(1, static_cast<char>('0' + random() % 4));
      it.device.states["INPT"] = chance(2) ? "31" : "32";
      it.device.facts["ERST"] = chance(2) ? "000000" : "010020";
      if (!it.wire) continue;
      it.wire->values[CommandCode::RunningState] = static_cast<int>(random() % 3);
      it.wire->values[CommandCode::InputSource] = static_cast<int>(random() % 9);
    }
    // Longer than the longest pause with its jitter, and all that wait in line.
    fleet.RunFor(round % 5 == 4 ? 900s : 61s);
    if (round % 5 != 4) continue;
    for (const auto& [id, host] : hosts) {
      const Projector& it = fleet.projectors[host];
      const LiveState state = fleet.State(id);
      const Reachability expected = Expected(it, policy);
      const bool answers = expected == Reachability::Answers;
      EXPECT_EQ(state.reachability, expected) << host;
      EXPECT_EQ(state.power, answers ? PowerOf(it) : std::nullopt) << host;
      EXPECT_EQ(state.source ? std::optional(state.source->number) : std::nullopt,
                answers ? SourceOf(it) : std::nullopt)
          << host;
      if (answers && !it.wire && state.power != PowerState::Standby) {
        EXPECT_EQ(state.problems, PjLink::ErrorGrades(it.device.facts.at("ERST"))) << host;
      }
    }
  }
  for (const auto& [host, it] : fleet.projectors) {
    EXPECT_LE(it.mostConnections, 1) << host;
    // What loses its connection is connected to again, but a visit does not take long.
    constexpr int kMostAttempts = 6;
    std::optional<SessionTime> visited;
    int attempts = 0;
    for (const SessionTime time : it.connections) {
      if (!visited || time >= *visited + 30s) {
        EXPECT_TRUE(!visited || time >= *visited + policy.interval) << host;
        visited = time;
        attempts = 0;
      }
      EXPECT_LE(++attempts, kMostAttempts) << host;
    }
  }
  EXPECT_GT(fleet.watcher.Tally().answered, 10 * kCount);
  fleet.watcher.SetAsking(false);
  const FleetTally tally = fleet.watcher.Tally();
  EXPECT_EQ(tally.begun, tally.answered + tally.unanswered + tally.abandoned);
}

}  // namespace
