// A fleet's thread and real sockets, to simulated projectors on the loopback address.

#include <algorithm>
#include <atomic>
#include <deque>
#include <map>
#include <optional>

#include <QUdpSocket>

#include "app/simulator/PseudoTerminal.h"
#include "fleet/FileEvents.h"
#include "fleet/Fleet.h"
#include "fleet/NameResolver.h"
#include "fleet/SerialLine.h"
#include "tests/fleet/Served.h"
#include "tests/fleet/SilentServer.h"
#include "tests/support/Limited.h"

namespace {

using namespace std::chrono_literals;

struct FleetTest : ServingTest {
  Reachability Reached(const std::string& id) const { return fleet.State(id)->reachability; }

  Served served;
  std::atomic<int> wakes = 0;
  Fleet fleet{{.interval = 50ms, .soonest = 10ms}, [this] { ++wakes; }};
};

TEST_F(FleetTest, WatchesRealProjectors) {
  served.device->Execute({PjtOperation::SetPowerOn});
  fleet.Set({"pjlink", served.PjLink("secret")});
  fleet.Set({"wire", TcpAddress{.host = "\uFF4Cocalhost", .port = served.wirePort}});  // any "l"
  fleet.Set({"locked", served.PjLink("wrong")});
  fleet.Set({"other", TcpAddress{.host = "127.0.0.1",
                                 .port = static_cast<std::uint16_t>(served.pjLink.Port())}});
  // Nobody is asked about a name that is too long.
  fleet.Set({"unnamed", TcpAddress{.host = std::string(64, 'a')}});
  fleet.Set({"closed", TcpAddress{.host = "127.0.0.1", .port = 1}});
  fleet.Set({"closed by name", TcpAddress{.host = "localhost", .port = 1}});
  fleet.Set({"nowhere", TcpAddress{.host = "255.255.255.255", .port = 1}});
  ASSERT_TRUE(Soon([&] { return fleet.Tally().begun > 50; }));
  for (const char* const id : {"pjlink", "wire"}) {
    EXPECT_EQ(Reached(id), Reachability::Answers) << id;
    EXPECT_EQ(fleet.State(id)->power, PowerState::On) << id;
  }
  EXPECT_EQ(Reached("locked"), Reachability::WrongPassword);
  EXPECT_EQ(Reached("other"), Reachability::NotUnderstood);
  for (const char* const id : {"closed", "closed by name", "nowhere", "unnamed"}) {
    EXPECT_TRUE(Soon([&] { return Reached(id) == Reachability::Silent; })) << id;
    EXPECT_EQ(fleet.State(id)->connection, id == std::string("unnamed")
                                               ? ConnectionState::NameUnknown
                                               : ConnectionState::NotReachable)
        << id;
  }

  fleet.TakeChanges();
  const int before = wakes;
  {
    const Fleet::Pause pause(fleet, "pjlink");
    served.device->Execute({PjtOperation::Set, CommandCode::BlankState, 1});
    EXPECT_TRUE(Soon([&] { return fleet.State("wire")->blank == true; }));
    EXPECT_NE(fleet.State("pjlink")->blank, true);
  }
  EXPECT_TRUE(Soon([&] { return fleet.State("pjlink")->blank == true; }));
  EXPECT_EQ(fleet.TakeChanges().changes.size(), 2);
  EXPECT_EQ(wakes, before + 1) << "once for all that came since";
}

TEST_F(FleetTest, WatchesASerialPortAndLeavesItToOthers) {
  auto terminal = std::make_unique<PseudoTerminal>();
  const SerialAddress address{.device = terminal->Path(), .baud = 57'600};
  served.wire.Serve(std::move(terminal));
  fleet.Set({"line", address});
  fleet.Set({"none", SerialAddress{.device = "/dev/no-such-port"}});
  fleet.Set({"file", SerialAddress{.device = "/dev/null"}});
  ASSERT_TRUE(Soon([&] { return Reached("line") == Reachability::Answers; }));
  EXPECT_TRUE(Soon([&] { return Reached("none") == Reachability::Silent; }));
  EXPECT_TRUE(Soon([&] { return Reached("file") == Reachability::Silent; }));
  fleet.Remove("none");
  fleet.Remove("file");

  auto problem = SerialLine::Problem::None;
  int file = -1;
  ASSERT_TRUE(Soon([&] {
    return (file = SerialLine::Open(address.device, address.baud, problem)) >= 0;
  })) << "it is free between two visits";
  const FleetTally before = fleet.Tally();
  EXPECT_TRUE(Soon([&] { return fleet.Tally().abandoned > before.abandoned + 1; }));
  EXPECT_EQ(Reached("line"), Reachability::Answers);
  SerialLine::Close(file);
  EXPECT_TRUE(Soon([&] { return fleet.Tally().answered > before.answered + 1; }));
  EXPECT_EQ(fleet.Tally().unanswered, before.unanswered);
}

TEST_F(FleetTest, LooksNamesUpOnTwoThreadsForAll) {
  const auto before = Threads();
  const FileEvents events;
  std::deque<NameResolver> resolvers;
  for (std::uint32_t i = 0; i < 8; ++i) {
    resolvers.emplace_back(events.WakeFile());
    for (const std::string& name : {std::string("localhost"), std::string(64, 'a')}) {
      resolvers.back().LookUp(i, name);
    }
  }
  EXPECT_LE(Threads(), before + 2);
  resolvers.pop_front();
  std::map<std::uint32_t, int> found;
  EXPECT_TRUE(Soon([&] {
    for (NameResolver& resolver : resolvers) {
      for (const auto& one : resolver.Take()) {
        ++found[one.asker];
        EXPECT_EQ(one.addresses.empty(), one.name != "localhost");
      }
    }
    return found.size() == 7 &&
           std::ranges::all_of(found, [](auto one) { return one.second == 2; });
  }));
}

TEST_F(FleetTest, TakesNoticesInsteadOfAsking) {
  Fleet slow({.soonest = 0ms});
  slow.Set({"a", served.PjLink("secret")});
  const std::uint16_t port = slow.ListenForNotices("127.0.0.1", 0);
  ASSERT_NE(port, 0);
  for (const char* const none : {"", "%2POWR 1\r", "%1POWR=1\r", "%2ACKN=0\r", "\xFF%2POWR=1"}) {
    EXPECT_FALSE(PjLink::IsNotice(none)) << none;
  }
  EXPECT_EQ(fleet.ListenForNotices("127.0.0.1", port), 0) << "it is taken";
  EXPECT_EQ(fleet.ListenForNotices("nowhere", port), 0);
  ASSERT_TRUE(Soon([&] { return slow.Tally().answered == 1; }));
  QUdpSocket projector;
  projector.setProxy(QNetworkProxy::NoProxy);  // looking for one takes a thread
  const auto send = [&](const QByteArray& text) {
    projector.writeDatagram(text, QHostAddress::LocalHost, port);
  };
  for (const char* const text : {"", "no notice", "%2erst=002000\r\n"}) send(text);
  EXPECT_TRUE(Soon([&] {
    const auto problems = slow.State("a")->problems;
    return problems && problems->at(2) == ProblemGrade::Error;
  }));
  EXPECT_EQ(slow.Tally().begun, 1);
  send("%2lkup=00:00:00:00:00:00");
  EXPECT_TRUE(Soon([&] { return slow.Tally().answered == 2; }));
  EXPECT_EQ(slow.State("a")->problems, PartProblems()) << "as it says itself";
  slow.AskSoon("a");
  EXPECT_TRUE(Soon([&] { return slow.Tally().answered == 3; }));
  slow.SetInterval(1ms);
  EXPECT_TRUE(Soon([&] { return slow.Tally().answered > 3; }));
}

TEST_F(FleetTest, HandsOutManyChangesInParts) {
  fleet.SetAsking(false);
  fleet.Set({"a", served.PjLink("secret")});
  constexpr int kChanges = 2500;
  for (int i = 1; i <= kChanges; ++i) fleet.LearnDrift("a", i);
  std::vector<std::size_t> parts;
  int taken = 0, told = 0;
  EXPECT_TRUE(Soon([&] {
    if (std::exchange(told, wakes.load()) == wakes) return false;
    parts.push_back(fleet.TakeChanges().changes.size());
    return (taken += static_cast<int>(parts.back())) == kChanges;
  }));
  EXPECT_EQ(parts, (std::vector<std::size_t>{1000, 1000, 500}));
  EXPECT_EQ(wakes, 3);
  fleet.LearnDrift("a", {});
  EXPECT_TRUE(Soon([&] { return wakes == 4; }));
  fleet.TakeChanges();
  fleet.Learn("a", {PjtOperation::Get, CommandCode::RunningState}, {.result = 1},
              PowerState::WarmingUp);
  EXPECT_TRUE(Soon([&] { return wakes == 5; }));
  EXPECT_EQ(fleet.State("a")->power, PowerState::WarmingUp) << "and not only on";
}

TEST_F(FleetTest, LeavesFilesToTheRestOfTheProgram) {
  auto limited = std::make_optional<Limited>(RLIMIT_NOFILE, 40);
  Fleet careful({.connect = 1h, .answer = 1h});
  limited.reset();
  careful.SetAsking(false);
  const SilentServer silent(QHostAddress::AnyIPv4);
  for (int i = 0; i < 30; ++i) {
    const std::string host = "127.0.1." + std::to_string(i);
    careful.Set({host, TcpAddress{.host = host, .port = silent.Address().port}});
  }
  careful.SetAsking(true);
  EXPECT_TRUE(Soon([&] { return careful.Tally().begun > 0; }));
  EXPECT_EQ(careful.Tally().begun, 20);
  careful.SetAsking(false);
  EXPECT_EQ(careful.Tally().abandoned, 20);
}

TEST(FileEvents, AreWokenOnce) {
  FileEvents events;
  events.Wake();
  events.Wait(SessionTime::max());
  const auto end = std::chrono::steady_clock::now() + 50ms;
  events.Wait(end);
  EXPECT_GE(std::chrono::steady_clock::now(), end);
}

// Many visits are in the middle of something whenever it ends.
TEST_F(FleetTest, EndsAtAnyMoment) {
  for (int i = 0; i < 20; ++i) {
    Fleet one({.interval = 0ms, .jitter = 0});
    for (int projector = 0; projector < 30; ++projector) {
      one.Set({std::to_string(projector),
               projector % 2 == 0 ? ProjectorAddress(served.PjLink("secret"))
                                  : TcpAddress{.host = "localhost", .port = served.wirePort}});
    }
    EXPECT_TRUE(Soon([&] { return one.Tally().begun > 40 || i % 2 != 0; }));
  }
}

}  // namespace
