// Searching the network for projectors.

#include <algorithm>
#include <chrono>
#include <gmock/gmock.h>
#include <map>
#include <string>

#include <QCoreApplication>
#include <QEventLoop>
#include <QHostAddress>

#include "fleet/SearchDriver.h"
#include "fleet/SearchRange.h"
#include "tests/support/Programs.h"

namespace {

using testing::HasSubstr;
using testing::SizeIs;

// The simulator program answers, at loopback addresses alone.
TEST(SearchDriver, FindsAFleetByRangeAndByBroadcast) {
  constexpr std::size_t kCount = 20;
  int count = 0;
  QCoreApplication application(count, nullptr);
  const SimulatorProcess simulator({"--fleet", QString::number(kCount), "--control", "0"});
  SearchOptions options;
  options.port = simulator.Address("pjlink").section(':', -1).toUShort();
  options.answerPort = 0;
  options.answers = std::chrono::seconds(60);
  options.limits = {.connect = std::chrono::seconds(30), .answer = std::chrono::seconds(30)};
  // Ends with so many, or with the search.
  const auto search = [&](std::size_t wanted) {
    std::map<std::string, FoundProjector> found;
    QEventLoop loop;
    SearchDriver driver(
        options,
        [&](const FoundProjector& projector) {
          found[projector.address] = projector;
          if (found.size() == wanted) loop.quit();
        },
        [&] { loop.quit(); });
    driver.Start();
    loop.exec();
    EXPECT_EQ(driver.Problem(), "");
    return found;
  };
  options.addresses = ParseSearchRange("127.64.0.1-127.64.0.20").addresses;
  options.perSecond = 50;
  const auto start = std::chrono::steady_clock::now();
  const auto byRange = search(kCount + 1);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(350));
  ASSERT_THAT(byRange, SizeIs(kCount));
  const auto isSecond = [](const auto& found) { return found.second.protocolClass == '2'; };
  const auto ofSecondClass = std::ranges::count_if(byRange, isSecond);
  options.addresses.clear();
  options.broadcasts = {QHostAddress("127.255.255.255")};
  const auto byBroadcast = search(static_cast<std::size_t>(ofSecondClass));
  for (const auto& [address, found] : byRange) {
    const auto same = byBroadcast.find(address);
    EXPECT_EQ(same != byBroadcast.end(), found.protocolClass == '2') << address;
    if (same == byBroadcast.end()) continue;
    EXPECT_EQ(same->second.serial, found.serial);
    EXPECT_EQ(same->second.inputs, found.inputs);
    EXPECT_THAT(same->second.mac, HasSubstr("02:00:00:00:00:"));
  }
}

}  // namespace
