// Which bridge watches which projectors.

#include <chrono>
#include <gmock/gmock.h>
#include <map>

#include "app/bridge/OtherShares.h"
#include "app/bridge/ShareKeeper.h"
#include "tests/bridge/Profiles.h"

namespace {

using namespace std::chrono_literals;

FleetProfile Identified(const std::string& identity, const std::vector<std::string>& tags = {}) {
  return ProfileOf("Hall", {}, identity, tags);
}

std::vector<FleetProfile> Many() {
  std::vector<FleetProfile> profiles;
  for (int i = 0; i < 3000; ++i) {
    profiles.push_back(Identified("mac:" + std::to_string(i), {i % 3 == 0 ? "north" : "south"}));
  }
  return profiles;
}

TEST(Share, DividesEvenlyAndMovesFew) {
  const std::vector<FleetProfile> profiles = Many();
  const auto ownerOf = [](const FleetProfile& profile, int count) {
    std::vector<int> owners;
    for (int i = 1; i <= count; ++i) {
      if (Share{.number = i, .count = count}.Has(profile)) owners.push_back(i);
    }
    EXPECT_EQ(owners.size(), 1U);
    return owners.front();
  };
  std::map<int, int> sizes;
  int moved = 0;
  for (const FleetProfile& profile : profiles) {
    const int five = ownerOf(profile, 5);
    const int six = ownerOf(profile, 6);
    ++sizes[five];
    if (five == six) continue;
    ++moved;
    EXPECT_EQ(six, 6);
  }
  for (const auto& [owner, size] : sizes) EXPECT_NEAR(size, 600, 100) << owner;
  EXPECT_NEAR(moved, 500, 100);
  // Shares on different machines and of different versions must agree.
  EXPECT_EQ(ownerOf(Identified("mac:00:00:5e:00:53:01"), 5), 4);
  EXPECT_EQ(ownerOf(Identified(""), 5), 3);

  Share tagged{.tags = {"north", "south"}};
  EXPECT_FALSE(tagged.Has(Identified("id:1", {"east"})));
  EXPECT_TRUE(tagged.Has(Identified("id:1", {"east", "south"})));
  EXPECT_EQ(ParseShare("2/5"), (Share{.number = 2, .count = 5}));
  EXPECT_EQ(ParseShare("2/5")->Name(), "2-of-5");
  EXPECT_EQ((Share{.tags = {"North-East"}}.Name()), "1-of-1-North-East");
  EXPECT_EQ((Share{.tags = {"North", "East", "North"}}.Name()), "1-of-1-East.North");
  for (const char* wrong : {"", "2", "0/5", "6/5", "2/5x", "-1/5", "1/1001", "1/99999999999"}) {
    EXPECT_FALSE(ParseShare(wrong)) << wrong;
  }
}

TEST(OtherShares, AreToldWhereTheyOverlap) {
  const ShareProfiles mine(Many(), {.number = 1, .count = 2});
  OtherShares others(mine, 30s);
  OtherShares::Time now{1h};
  const auto take = [&](const Share& share, bool isRetained = false) {
    return others
        .Take({"p/bridge/" + share.Name() + "/holder", ClaimMessage({1, "x", 1}, JsonOf(share)),
               isRetained},
              now)
        .toStdString();
  };
  EXPECT_EQ(take({.number = 2, .count = 2}), "");
  EXPECT_EQ(take({.number = 1, .count = 3}, true), "") << "it may be gone";
  EXPECT_EQ(others.Common(now), 0U);
  const std::string told = take({.number = 1, .count = 3});
  EXPECT_THAT(told, testing::StartsWith("the bridge with the share 1-of-3 has "));
  EXPECT_EQ(take({.number = 1, .count = 3}), "") << "once";
  const auto thirds = others.Common(now);
  EXPECT_NEAR(static_cast<double>(thirds), 1000, 100) << "all of them, as shares only lose some";
  EXPECT_NE(take({.tags = {"north"}}), "");
  EXPECT_NEAR(static_cast<double>(others.Common(now) - thirds), 500, 100);
  now += 31s;
  EXPECT_EQ(others.Common(now), 0U);
  EXPECT_EQ(take({.number = 1, .count = 3}), told);
  for (const char* wrong : {"", "[]", R"({"instance":"x","beat":1})", R"({"share":{"part":"3/2"}})",
                            R"({"share":7})"}) {
    EXPECT_EQ(others.Take({"p/bridge/x/holder", wrong}, now), "") << wrong;
  }
}

}  // namespace
