// A fleet's thread and real sockets, to simulated projectors on the loopback address.

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include <QCoreApplication>
#include <QHostAddress>
#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "device/ModelDataIntake.h"
#include "fleet/Fleet.h"
#include "simulator/PjLinkServer.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireServer.h"

namespace {

using namespace std::chrono_literals;

ModelData Model() {
  ModelData model;
  model.DialogType = 5;
  model.ModelCode = 54;
  return model;
}

/// A projector that is served both ways, on the thread of the test.
struct ServedTwice {
  std::shared_ptr<SimulatedProjector> projector =
      std::make_shared<SimulatedProjector>(DescribeModel(Model()));
  PjLinkServer pjLink{projector, {.password = "secret"}};
  WireServer wire{projector};
  std::uint16_t wirePort = wire.Listen(QHostAddress::LocalHost, 0);

  ServedTwice() { EXPECT_TRUE(pjLink.Listen("127.0.0.1", 0)); }
  PjLinkAddress PjLink(const std::string& password) const {
    return {.host = "127.0.0.1",
            .port = static_cast<std::uint16_t>(pjLink.Port()),
            .password = password};
  }
};

/// Serves until it is so; false if that takes very long.
bool Becomes(const std::function<bool()>& isSo) {
  const auto end = std::chrono::steady_clock::now() + 60s;
  while (!isSo()) {
    if (std::chrono::steady_clock::now() > end) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    std::this_thread::sleep_for(1ms);
  }
  return true;
}

class FleetTest : public testing::Test {
 protected:
  Reachability Reached(const std::string& id) const { return fleet.State(id)->reachability; }

  int count_ = 0;
  char* name_ = nullptr;
  QCoreApplication application_{count_, &name_};
  ServedTwice served;
  std::atomic<int> wakes = 0;
  Fleet fleet{{.interval = 50ms, .soonest = 10ms}, [this] { ++wakes; }};
};

TEST_F(FleetTest, WatchesRealProjectors) {
  served.projector->Execute({PjtOperation::SetPowerOn});
  fleet.Set({"pjlink", served.PjLink("secret")});
  fleet.Set({"wire", TcpAddress{.host = "localhost", .port = served.wirePort}});
  fleet.Set({"locked", served.PjLink("wrong")});
  fleet.Set({"other", TcpAddress{.host = "127.0.0.1",
                                 .port = static_cast<std::uint16_t>(served.pjLink.Port())}});
  fleet.Set({"unnamed", TcpAddress{.host = "no-such-name.invalid"}});
  fleet.Set({"closed", TcpAddress{.host = "127.0.0.1", .port = 1}});
  ASSERT_TRUE(Becomes([&] { return fleet.Tally().begun > 50; }));
  for (const char* const id : {"pjlink", "wire"}) {
    EXPECT_EQ(Reached(id), Reachability::Answers) << id;
    EXPECT_EQ(fleet.State(id)->power, PowerState::On) << id;
  }
  EXPECT_EQ(Reached("locked"), Reachability::WrongPassword);
  EXPECT_EQ(Reached("other"), Reachability::NotUnderstood);
  EXPECT_EQ(Reached("closed"), Reachability::Silent);
  EXPECT_TRUE(Becomes([&] { return Reached("unnamed") == Reachability::Silent; }));
  EXPECT_EQ(fleet.State("unnamed")->connection, ConnectionState::NameUnknown);

  fleet.TakeChanges();
  const int before = wakes;
  {
    const Fleet::Pause pause(fleet, "pjlink");
    served.projector->Execute({PjtOperation::Set, CommandCode::BlankState, 1});
    EXPECT_TRUE(Becomes([&] { return fleet.State("wire")->blank == true; }));
    EXPECT_NE(fleet.State("pjlink")->blank, true);
  }
  EXPECT_TRUE(Becomes([&] { return fleet.State("pjlink")->blank == true; }));
  EXPECT_EQ(fleet.TakeChanges().changes.size(), 2);
  EXPECT_EQ(wakes, before + 1) << "once for all that came since";
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
    EXPECT_TRUE(Becomes([&] { return one.Tally().begun > 40 || i % 2 != 0; }));
  }
}

}  // namespace
