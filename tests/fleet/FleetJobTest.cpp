// Jobs on simulated projectors, which the thread of the test serves.

#include <atomic>
#include <cstdint>
#include <deque>
#include <fstream>
#include <numeric>
#include <thread>
#include <unistd.h>
#include <variant>

#include <QPointer>

#include "app/simulator/PseudoTerminal.h"
#include "fleet/Fleet.h"
#include "fleet/FleetJob.h"
#include "fleet/FleetUndo.h"
#include "fleet/JobChannel.h"
#include "fleet/MakeVisit.h"
#include "fleet/SerialLine.h"
#include "tests/fleet/Served.h"
#include "tests/fleet/SilentServer.h"
#include "tests/support/Texts.h"

namespace {

using namespace std::chrono_literals;
using enum WorkOutcome;

struct FleetJobTest : ServingTest {
  FleetJobTest() {
    const auto model = std::make_shared<const ModelData>(SimulatedModelData());
    for (int i = 0; i < 4; ++i) {
      served.emplace_back().device->Execute({PjtOperation::SetPowerOn});
      targets.push_back({std::to_string(i), served.back().Wire(), model});
    }
    targets.push_back({"gone", TcpAddress{.host = "127.0.0.1", .port = 1}, model});
  }

  std::vector<WorkResult> Do(FleetWork work, Fleet* fleet = nullptr) {
    FleetJob job(fleet, targets, std::move(work), Texts(), {.timeOut = 1h});
    EXPECT_TRUE(Soon([&] { return job.HowFar().finished == targets.size(); }));
    undo = job.Undo();
    return job.Results();
  }

  /// The outcomes in the targets' order.
  static std::vector<WorkOutcome> Outcomes(const std::vector<WorkResult>& results) {
    std::vector<WorkOutcome> outcomes(results.size());
    std::ranges::transform(results, outcomes.begin(), &WorkResult::outcome);
    return outcomes;
  }

  std::vector<int> Mirrors() {
    std::vector<int> mirrors;
    for (const Served& one : served)
      mirrors.push_back(one.device->Execute({PjtOperation::GetMirror}).value);
    return mirrors;
  }

  std::deque<Served> served;
  std::vector<FleetTarget> targets;
  SnapshotsById undo;
};

TEST_F(FleetJobTest, SetsOnAllAndUndoesTheRun) {
  served[1].device->Execute({PjtOperation::SetMirror, 0, 2});
  served[2].device->SetFault(PjtOperation::SetMirror, {.kind = Fault::Kind::Refuse});
  const auto before = Mirrors();
  const auto results = Do(SetSetting{"setup.mirror", "2"});
  EXPECT_EQ(Outcomes(results), (std::vector{Done, Done, Refused, Done, NoAnswer}));
  EXPECT_EQ(results[2].reason, "setup.mirror: refused");
  EXPECT_FALSE(results[4].reason.empty());
  EXPECT_EQ(Mirrors(), (std::vector{2, 2, before[2], 2}));
  EXPECT_EQ(undo.count("1") + undo.count("gone"), 0) << "nothing was changed there";

  served[0].device->SetFault(PjtOperation::SetMirror, {.kind = Fault::Kind::Late, .delay = 1h});
  FleetJob job(nullptr, {targets[0]}, SetSetting{"setup.mirror", "1"}, Texts(), {.timeOut = 1h});
  std::thread other([&] {
    while (job.Undo().empty()) std::this_thread::yield();
    served[0].device->Clear();
  });
  EXPECT_TRUE(Soon([&] { return job.HowFar().finished == 1; })) << "it can be undone meanwhile";
  other.join();

  const FleetUndoContents read = ReadFleetUndo(WriteFleetUndo(undo));
  EXPECT_EQ(read.error, QString());
  ASSERT_TRUE(read.undo.contains("0") && read.undo.contains("3"));
  served[2].device->Clear();
  const auto undone = Do(ApplySnapshots{read.undo});
  EXPECT_EQ(undone[0].outcome, Done);
  EXPECT_EQ(undone[1].outcome, Refused) << "it has no snapshot";
  EXPECT_EQ(Mirrors(), before);
  for (const char* const wrong : {"", "[]", R"({"undoOfJob":[{"id":"a","snapshot":{}}]})",
                                  R"({"undoOfJob":[{"snapshot":{}}]})"}) {
    EXPECT_NE(ReadFleetUndo(wrong).error, QString()) << wrong;
  }
}

TEST_F(FleetJobTest, TakesAndComparesSnapshotsAndSwitchesPower) {
  Fleet fleet;
  for (const FleetTarget& target : targets) fleet.Set(target);
  const auto taken = Do(TakeSnapshots(), &fleet);
  EXPECT_EQ(Outcomes(taken), (std::vector{Done, Done, Done, Done, NoAnswer}));
  ASSERT_TRUE(taken[0].snapshot);
  EXPECT_GT(taken[0].snapshot->settings.size(), 20);
  const auto wanted = std::make_shared<const Snapshot>(*taken[0].snapshot);
  served[3].device->Execute({PjtOperation::SetMirror, 0, 2});
  const auto compared =
      Do(CompareSnapshots{{{"0", wanted}, {"3", wanted}, {"gone", wanted}}}, &fleet);
  EXPECT_EQ(Outcomes(compared), (std::vector{Done, Refused, Refused, Done, NoAnswer}));
  EXPECT_EQ(fleet.State("0")->drift, 0);
  EXPECT_EQ(fleet.State("3")->drift, 1);
  ASSERT_EQ(compared[3].differences->size(), 1U);
  EXPECT_EQ(compared[3].differences->front().saved.key, "setup.mirror");
  EXPECT_EQ(compared[3].differences->front().here, 2);
  served[0].device->Execute({PjtOperation::SetMirror, 0, 2});
  Do(CompareSnapshots{{{"0", wanted}}, false}, &fleet);
  EXPECT_EQ(fleet.State("0")->drift, 0) << "this is not how it should be";
  served[0].device->SetFault(Fault{.kind = Fault::Kind::FailRead});
  EXPECT_EQ(Do(CompareSnapshots{{{"0", wanted}}}, &fleet)[0].differing, std::nullopt)
      << "nobody knows";
  EXPECT_EQ(fleet.State("3")->drift, 1) << "as it was";
  served[0].device->SetFault(Fault{});

  fleet.SetAsking(false);
  served[1].device->SetFault(PjtOperation::SetPowerOff, {.kind = Fault::Kind::Refuse});
  const auto off = Do(SwitchPower{false}, &fleet);
  EXPECT_EQ(off[0].outcome, Done);
  EXPECT_NE(off[1].outcome, Done);
  EXPECT_EQ(fleet.State("0")->power, PowerState::Standby) << "learned from the job";
}

TEST_F(FleetJobTest, WorksOverPjLinkAndASerialPort) {
  auto terminal = std::make_unique<PseudoTerminal>();
  const SerialAddress line{.device = terminal->Path()};
  served[1].wire.Serve(std::move(terminal));
  const auto model = targets.front().model;
  targets = {{"pjlink", served[0].PjLink("secret"), model},
             {"line", line, model},
             {"nowhere", AddressError{"no address"}, model}};
  const auto taken = Do(TakeSnapshots());
  EXPECT_EQ(Outcomes(taken), (std::vector{Done, Done, NoAnswer}));
  EXPECT_EQ(taken[2].reason, "wrong connection parameters");
  const auto& told = taken[0].snapshot->settings;
  EXPECT_EQ(std::ranges::count(told, "HDMI (31)", &SavedSetting::text), 1);
  EXPECT_GT(taken[1].snapshot->settings.size(), 20);
  EXPECT_EQ(Outcomes(Do(SwitchPower{false})), (std::vector{Done, Done, NoAnswer}));
  auto problem = SerialLine::Problem::None;
  int file = -1;
  ASSERT_TRUE(
      Soon([&] { return (file = SerialLine::Open(line.device, line.baud, problem)) >= 0; }));
  EXPECT_EQ(Do(TakeSnapshots())[1].outcome, NoAnswer) << "another program has the port";
  SerialLine::Close(file);
}

TEST_F(FleetJobTest, WaitsForSixtyFourAtOnceOnOneThreadUntilItIsCancelled) {
  std::deque<SilentServer> silent(70);
  targets.resize(1);
  for (SilentServer& one : silent) {
    targets.push_back({std::to_string(targets.size()), one.Address()});
  }
  targets.insert(targets.end(), 2, {"in its line", silent.front().Address()});
  const auto before = Threads();
  FleetJob job(nullptr, targets, SwitchPower{true}, Texts(), {.timeOut = 60s});
  EXPECT_TRUE(Soon([&] {
    return std::accumulate(silent.begin(), silent.end(), std::size_t{0},
                           [](std::size_t sum, auto& one) { return sum + one.Accept(); }) == 64;
  }));
  EXPECT_EQ(Threads(), before + 1);
  EXPECT_EQ(std::ranges::count(Outcomes(job.Results()), Working), 64);
  job.Cancel();
  silent.clear();
  EXPECT_TRUE(Soon([&] { return job.HowFar().finished == targets.size(); }));
  job.Wait();
  const auto outcomes = Outcomes(job.Results());
  EXPECT_EQ(outcomes.front(), Done);
  EXPECT_EQ(std::ranges::count(outcomes, NoAnswer), 64);
  EXPECT_EQ(std::ranges::count(outcomes, Stopped), 8);
}

TEST_F(FleetJobTest, WorksOnOneAtATimeAtAnAddress) {
  SilentServer silent;
  targets.clear();
  for (const char* const id : {"one", "same", "again"}) targets.push_back({id, silent.Address()});
  std::atomic<std::size_t> released = 0;
  const auto onProgress = [&, place = PlaceOf(targets.front())] {
    released += AddressHold::LengthOfLine(place) == 0 ? 1 : 0;
  };
  FleetJob job(nullptr, targets, SwitchPower{true}, Texts(),
               {.timeOut = 60s, .onProgress = onProgress});
  for (std::size_t i = 0; i < targets.size(); ++i) {
    EXPECT_TRUE(Soon([&] { return silent.Accept() > i; }));
    EXPECT_EQ(silent.connections.size(), i + 1);
    EXPECT_EQ(job.HowFar().finished, i);
    silent.connections.back()->close();
  }
  job.Wait();
  EXPECT_EQ(job.HowFar().finished, targets.size());
  EXPECT_TRUE(Soon([&] { return released == targets.size(); }));
  targets.assign(WireServer::kMaximumConnections + 1,
                 {"again", served[0].Wire(), std::make_shared<ModelData>(SimulatedModelData())});
  EXPECT_EQ(Outcomes(Do(TakeSnapshots())), std::vector(targets.size(), Done)) << "one by one";
}

TEST_F(FleetJobTest, ConnectsAgainWhenTheProjectorHasClosed) {
  const Served& projector = served.front();
  const ProjectorAddress ways[] = {projector.Wire(), projector.PjLink("secret")};
  for (const ProjectorAddress& way : ways) {
    SilentServer door;
    ProjectorAddress address = way;
    std::visit(
        [&](auto& at) {
          if constexpr (requires { at.port; }) at.port = door.Address().port;
        },
        address);
    std::atomic<int> answered = 0, wanted = 1;
    std::jthread job([&] {
      JobLoop loop;
      loop.Run(1, [&](std::size_t) {
        const auto channel = MakeJobChannel(loop, address, 1h);
        for (; answered < 2; ++answered) {
          while (wanted <= answered) std::this_thread::yield();  // the loop sees nothing
          EXPECT_TRUE(channel->Execute({PjtOperation::SetPowerOn}).answered);
        }
      });
    });
    for (const int connection : {1, 2}) {
      ASSERT_TRUE(Soon([&] { return door.Accept() == 1; })) << connection;
      const QPointer line(door.connections.front().get());
      if (std::holds_alternative<TcpAddress>(way)) {
        served.front().wire.Serve(std::move(door.connections.front()));
      } else {
        served.front().pjLink.Serve(std::move(door.connections.front()));
      }
      door.connections.clear();
      EXPECT_TRUE(Soon([&] { return answered == connection; }));
      line->disconnectFromHost();
      EXPECT_TRUE(Soon([&] { return !line; }));
      ++wanted;
    }
  }
}

// Somebody else's turn must not shorten the wait for a connection.
TEST(JobLoopTest, WakesOnlyWorkThatPauses) {
  struct Nothing : JobLoop::Receiver {
    void Connected() override {}
    void NotConnected(ConnectionState, SessionTime) override {}
    void Received(std::string_view, SessionTime) override {}
    void Closed(SessionTime) override {}
  } nothing;
  JobLoop loop;
  const JobLoop::Peer peer = loop.Add(nothing);
  for (int run = 0; run < 2; ++run) {
    bool hasWoken = false;
    loop.Run(3, [&](std::size_t number) {
      JobLoop::Pause({});
      const auto end = std::chrono::steady_clock::now() + 50ms;
      if (number == 0) {
        JobLoop::Pause(SessionTime::max());
        EXPECT_TRUE(hasWoken);
      } else if (number == 1) {
        hasWoken = true;
        loop.WakeAll();
      } else {
        loop.Wait(peer, end);
        EXPECT_GE(std::chrono::steady_clock::now(), end);
      }
    });
  }
  JobLoop::Pause({});  // the thread sleeps
}

TEST(JobLoopTest, LeavesNoFilesAndNoMemory) {
  const auto megabytes = [] {
    std::ifstream file("/proc/self/statm");
    return (*std::istream_iterator<std::int64_t>(file) * sysconf(_SC_PAGESIZE)) >> 20;
  };
  constexpr int kLoops = 4000;
  const auto files = EntriesOf("/proc/self/fd");
  const auto before = megabytes();
  for (int i = 0; i < kLoops; ++i) JobLoop().Run(1, [](std::size_t) {});
  EXPECT_EQ(EntriesOf("/proc/self/fd"), files);
  EXPECT_LT(megabytes(), before + kLoops / 4) << "a stack has one";
}

}  // namespace
