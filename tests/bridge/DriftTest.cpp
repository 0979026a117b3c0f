// A bridge's fleet, and how it finds out what differs from a snapshot.

#include <atomic>

#include <QTemporaryDir>

#include "app/bridge/DriftCheck.h"
#include "fleet/MakeVisit.h"
#include "snapshots/Snapshot.h"
#include "tests/bridge/Profiles.h"
#include "tests/fleet/Served.h"
#include "tests/support/Programs.h"
#include "tests/support/Texts.h"

namespace {

using namespace std::chrono_literals;

TEST(DriftCheck, TellsHowManySettingsDiffer) {
  Served served;
  FleetProfile hall = ProfileOf("Hall", SimulatedModelData());
  hall.connection.port = served.wirePort;
  hall.link = ProjectorLink::Network;
  hall.snapshot = "good";
  FleetProfile simulated = ProfileOf("No");
  simulated.link = ProjectorLink::Simulated;
  int changes = 0;
  const ShareProfiles projectors({hall, simulated}, {});
  BridgeFleet fleet(projectors, {.interval = 20ms}, [&](std::size_t) { ++changes; });
  ASSERT_EQ(projectors.Count(), 1U) << "without what is simulated";
  EXPECT_EQ(projectors.FindName("Hall"), 0U);
  EXPECT_FALSE(projectors.FindName("No"));
  EXPECT_EQ(projectors.Find(projectors.Id(0)), 0U);

  const QTemporaryDir folder;
  Snapshot snapshot = EmptySnapshot("Hall", hall.model->data);
  const ModelSettings settings(hall.model->data);
  for (const ModelSetting& setting : settings.All()) {
    if (!setting.Restorable() || !setting.range || snapshot.settings.size() == 2) continue;
    snapshot.settings.push_back({std::string(setting.key), setting.range->minimum, "", {}});
  }
  Write(folder.filePath("good.json"), WriteSnapshot(snapshot));
  DriftCheck check(fleet, Texts(), folder.path());
  std::atomic<int> tries = 0;
  const AddressHold::Observer observer([&](auto&, bool isHeld) { tries += isHeld ? 0 : 1; });
  served.device->SetFault(PjtOperation::Get, {.kind = Fault::Kind::FailRead});
  ASSERT_TRUE(served.device->Execute({PjtOperation::SetPowerOff}).answered);
  check.Start(1ms);
  fleet.SetAsking(true);
  EXPECT_TRUE(Soon([&] { return tries == 1; }));
  served.device->Clear();
  EXPECT_TRUE(served.device->Execute({PjtOperation::SetPowerOn}).answered);
  EXPECT_TRUE(Soon([&] { return fleet.State(0).drift == 2; })) << "as soon as it is seen on";
  std::optional<AddressHold> hold(std::in_place, PlaceOf(TargetOf(hall)));
  const auto waits = [&] { return AddressHold::LengthOfLine(PlaceOf(TargetOf(hall))) == 2; };
  check.PutOff();
  EXPECT_TRUE(Soon(waits)) << "it begins anew";
  check.Start();
  check.PutOff();
  EXPECT_TRUE(Soon([&] { return !waits(); })) << "it ends";
  hold.reset();

  fleet.SetAsking(false);
  EXPECT_TRUE(Soon([&] { return fleet.States()[0].state.power && changes > 0; }));
  fleet.Observe();
  fleet.Observe();
  EXPECT_EQ(fleet.Answers().Count(), 1U) << "each answer counts once";
}

}  // namespace
