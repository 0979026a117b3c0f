// Which bridge watches which projectors.

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "app/bridge/Share.h"

namespace {

FleetProfile Identified(const std::string& identity, const std::vector<std::string>& tags = {}) {
  return {.name = "Hall", .model = {}, .connection = {}, .identity = identity, .tags = tags};
}

TEST(Share, DividesEvenlyAndMovesFew) {
  std::vector<FleetProfile> profiles;
  for (int i = 0; i < 3000; ++i) profiles.push_back(Identified("mac:" + std::to_string(i)));
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
  for (const char* wrong : {"", "2", "0/5", "6/5", "2/5x", "-1/5", "1/1001", "1/99999999999"}) {
    EXPECT_FALSE(ParseShare(wrong)) << wrong;
  }
}

}  // namespace
