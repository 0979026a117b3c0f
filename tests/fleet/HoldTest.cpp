// A projector has one connection at a time, whoever wants to connect.

#include <future>
#include <thread>

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
  const auto address = PlaceOf({.id = {}, .address = silent.Address()});
  ASSERT_TRUE(Soon([&] { return AddressHold::LengthOfLine(address) == 4; }));
  cancelled->Cancel();
  EXPECT_TRUE(Soon([&] { return IsOver(*cancelled); }));
  EXPECT_EQ(cancelled->Results().front().outcome, WorkOutcome::Stopped);
  Job(silent.Address());  // cancelled when it is destroyed
  EXPECT_EQ(AddressHold::LengthOfLine(address), 3);

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
  EXPECT_TRUE(Soon([&] { return fleet.Tally().begun > 1; })) << "nobody else is there";
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
  const AddressHold::Observer late([&](auto& held, bool) { told += held == place ? "late" : ""; });
  EXPECT_EQ(told, "+nextsecond-");
  for (int i = 0; i < 20; ++i) {
    first.emplace(place);
    auto waits = std::async(std::launch::async, [&] { return AddressHold(place).WaitFor(1h); });
    while (AddressHold::LengthOfLine(place) < 2) std::this_thread::yield();
    first.reset();
    EXPECT_TRUE(waits.get());
  }
}

TEST(HoldingChannelTest, KeepsTheAddressUntilOthersWantIt) {
  struct Silent final : ProjectorChannel {
    PjtReply Execute(const PjtCommand&) override { return {.result = 1, .answered = answers}; }
    ConnectionState Connection() const override { return state; }
    void GiveUpAfter(std::chrono::milliseconds time) override { told = time; }
    bool UseIdleTime() override { return true; }
    bool TendConnection(std::chrono::milliseconds unused) override { return (told = unused) < 1h; }
    bool answers = true;
    ConnectionState state = ConnectionState::NoAnswer;
    std::chrono::milliseconds told{};
  };
  const FleetTarget target{"a", TcpAddress{"192.0.2.2"}};
  const auto length = [&] { return AddressHold::LengthOfLine(PlaceOf(target)); };
  const auto inner = std::make_shared<Silent>();
  std::optional<HoldingChannel> channel(std::in_place, inner, target, 1h);
  EXPECT_FALSE(channel->UseIdleTime() || channel->TendConnection(0ms));
  channel->GiveUpAfter(20ms);
  EXPECT_EQ(inner->told, 20ms);
  EXPECT_TRUE(channel->Execute({}).answered && channel->UseIdleTime());
  EXPECT_TRUE(channel->TendConnection(7ms) && inner->told == 7ms);
  std::optional<AddressHold> other(PlaceOf(target)), last(PlaceOf(target));
  EXPECT_FALSE(channel->UseIdleTime());
  EXPECT_FALSE(channel->TendConnection(7ms));
  EXPECT_TRUE(other->IsHeld() && inner->told > 1h) << "closed, then released";
  EXPECT_TRUE(channel->Execute({}).unsent);
  EXPECT_EQ(channel->Connection(), ConnectionState::Connecting);
  EXPECT_TRUE(channel->TendConnection(9s) && length() == 3 && !channel->UseIdleTime());
  EXPECT_FALSE(channel->TendConnection(10s) || length() == 3);
  EXPECT_TRUE(channel->Execute({}).unsent);
  other.reset();
  EXPECT_TRUE(channel->Execute({}).answered) << "before the last";
  last.reset();
  inner->answers = false;
  EXPECT_FALSE(channel->Execute({}).answered);
  inner->told = 0ms;
  EXPECT_FALSE(channel->TendConnection(7ms));
  EXPECT_TRUE(inner->told > 1h && length() == 0);
  inner->state = ConnectionState::Unused;
  EXPECT_EQ(channel->Connection(), ConnectionState::NoAnswer) << "why it was silent";
  inner->told = 0ms;
  channel.reset();
  EXPECT_GT(inner->told, 1h);
}

}  // namespace
