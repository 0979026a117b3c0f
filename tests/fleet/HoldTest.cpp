// A projector has one connection at a time, whoever wants to connect.

#include "device/channels/BoundedChannel.h"
#include "device/channels/TcpChannel.h"
#include "fleet/Fleet.h"
#include "fleet/FleetJob.h"
#include "fleet/HoldingChannel.h"
#include "fleet/MakeVisit.h"
#include "fleet/SearchDriver.h"
#include "tests/fleet/Served.h"
#include "tests/fleet/SilentServer.h"
#include "tests/support/Texts.h"

namespace {

using namespace std::chrono_literals;

struct HoldTest : ServingTest {
  std::unique_ptr<FleetJob> Job(const TcpAddress& at,
                                AddressHold::Turn turn = AddressHold::Turn::Last) {
    const FleetJob::Options options{.timeOut = 60s, .turn = turn};
    return std::make_unique<FleetJob>(
        &fleet,
        std::vector{FleetTarget{"a", at, std::make_shared<ModelData>(SimulatedModelData())}},
        SetSetting{"setup.mirror", "2"}, Texts(), options);
  }
  static bool IsOver(const FleetJob& job) { return job.HowFar().finished == 1; }

  Fleet fleet{{.interval = 20ms, .longestPause = 20ms, .soonest = 10ms, .connect = 60s}};
};

TEST_F(HoldTest, JobsAndVisitsAndASearchTakeTurns) {
  SilentServer silent;
  fleet.Set({"a", silent.Address()});
  ASSERT_TRUE(Soon([&] { return silent.Open() == 1; })) << "a visit";
  bool hasSearched = false;
  SearchDriver search(
      {.addresses = {QHostAddress(QHostAddress::LocalHost)},
       .port = silent.server.serverPort(),
       .limits = {.connect = 60s}},
      [](const FoundProjector&) {}, [&] { hasSearched = true; });
  search.Start();
  ASSERT_TRUE(Soon([&] { return fleet.Tally().abandoned == 1 && silent.Accept() == 2; }));
  const auto last = Job(silent.Address());
  const auto next = Job(silent.Address(), AddressHold::Turn::Next);
  const auto cancelled = Job(silent.Address());
  cancelled->Cancel();
  EXPECT_TRUE(Soon([&] { return IsOver(*cancelled); }));
  EXPECT_EQ(cancelled->Results().front().outcome, WorkOutcome::Stopped);
  const auto address = PlaceOf({.id = {}, .address = silent.Address()});
  ASSERT_TRUE(Soon([&] { return AddressHold::LengthOfLine(address) == 3; }));

  const std::function<bool()> ends[] = {[&] { return hasSearched; }, [&] { return IsOver(*next); },
                                        [&] { return IsOver(*last); }};
  for (std::size_t i = 0; i < std::size(ends); ++i) {
    EXPECT_TRUE(Soon([&] { return silent.Accept() == i + 2 && silent.Open() == 1; })) << i;
    EXPECT_FALSE(ends[i]());
    EXPECT_EQ(fleet.Tally().begun, 1) << "no visit meanwhile";
    silent.connections.back()->write("what is this?\r\n");
    silent.connections.back()->disconnectFromHost();
    EXPECT_TRUE(Soon(ends[i])) << i;
  }
}

TEST(AddressHoldTest, ServesTheLineInItsOrder) {
  const AddressHold::Address place{"192.0.2.1", 4352};
  EXPECT_EQ(AddressHold::LengthOfLine(place), 0U);
  std::string told;
  const auto tell = [&told](const char* what) { return [&told, what] { told += what; }; };
  std::optional<AddressHold> first(place), second, third, next;
  second.emplace(place, AddressHold::Turn::Last, tell("second"));
  third.emplace(place, AddressHold::Turn::Last, tell("third"));
  next.emplace(place, AddressHold::Turn::Next, tell("next"));
  const AddressHold::Observer observer([&](const AddressHold::Address& held, bool isHeld) {
    if (held == place) told += isHeld ? "+" : "-";
  });
  third.reset();
  EXPECT_TRUE(first->IsHeld() && first->IsWanted());
  EXPECT_FALSE(next->WaitFor(0ms));
  first.reset();
  EXPECT_TRUE(next->WaitFor(0ms));
  next.reset();
  EXPECT_TRUE(second->IsHeld() && !second->IsWanted());
  second.reset();
  EXPECT_EQ(told, "+nextsecond-");
}

TEST_F(HoldTest, ADialogsCommandComesAfterTheJobThatWorks) {
  SilentServer silent;
  const auto job = Job(silent.Address());
  ASSERT_TRUE(Soon([&] { return silent.Open() == 1; }));
  const auto later = Job(silent.Address());
  const TcpAddress at = silent.Address();
  BoundedChannel dialog(
      std::make_shared<HoldingChannel>(std::make_shared<TcpChannel>(at.host, at.port),
                                       FleetTarget{.id = {}, .address = at}, 200ms),
      {.timeOut = 200ms, .retryAfter = 0ms, .tend = 20ms});
  const PjtReply reply = dialog.Execute({PjtOperation::SetMirror, 0, 1});
  EXPECT_TRUE(!reply.answered && reply.unsent);
  EXPECT_EQ(dialog.Connection(), ConnectionState::Connecting);
  EXPECT_EQ(silent.Accept(), 1U);

  silent.connections.front()->close();
  ASSERT_TRUE(Soon([&] { return IsOver(*job); }));
  EXPECT_FALSE(dialog.Execute({PjtOperation::GetMirror}).unsent) << "before the other job";
  EXPECT_TRUE(Soon([&] { return silent.Accept() == 3; })) << "it has not answered";
  EXPECT_EQ(dialog.Connection(), ConnectionState::NoAnswer);
  EXPECT_EQ(silent.Open(), 1);
  silent.connections.back()->close();
  EXPECT_TRUE(Soon([&] { return IsOver(*later); }));
}

}  // namespace
