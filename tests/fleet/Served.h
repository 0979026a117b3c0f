#pragma once

#include <filesystem>
#include <iterator>
#include <memory>
#include <string>

#include <QHostAddress>
#include <gtest/gtest.h>

#include "device/CommandCode.h"
#include "device/Connect.h"
#include "simulator/FaultChannel.h"
#include "simulator/PjLinkServer.h"
#include "simulator/SimulatedProjector.h"
#include "simulator/WireServer.h"
#include "tests/support/Soon.h"

inline ModelData SimulatedModelData() {
  ModelData model;
  model.DialogType = 5;
  model.ModelCode = 54;
  return model;
}

/// A simulated projector that is served both ways, on the thread of the test.
struct Served {
  std::shared_ptr<FaultChannel> device = std::make_shared<FaultChannel>(
      std::make_shared<SimulatedProjector>(DescribeModel(SimulatedModelData())));
  PjLinkServer pjLink{device,
                      {.password = "secret", .served = {.inputs = {{"31", Input(), "HDMI"}}}}};
  WireServer wire{device};
  std::uint16_t wirePort = wire.Listen(QHostAddress::LocalHost, 0);

  Served() { EXPECT_TRUE(pjLink.Listen("127.0.0.1", 0)); }
  std::int16_t Input() const {
    return device->Execute({PjtOperation::Get, CommandCode::InputSource}).value;
  }
  TcpAddress Wire() const { return {.host = "127.0.0.1", .port = wirePort}; }
  PjLinkAddress PjLink(const std::string& password) const {
    return {.host = "127.0.0.1",
            .port = static_cast<std::uint16_t>(pjLink.Port()),
            .password = password};
  }
};

/// An application, which serves.
struct ServingTest : testing::Test {
  int argumentCount = 0;
  char* program = nullptr;
  QCoreApplication application{argumentCount, &program};
};

inline auto EntriesOf(const char* folder) {
  return std::distance(std::filesystem::directory_iterator(folder), {});
}
/// How many threads the program has.
inline auto Threads() { return EntriesOf("/proc/self/task"); }
