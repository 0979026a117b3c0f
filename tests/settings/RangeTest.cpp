#include <gtest/gtest.h>

#include "settings/Range.h"

TEST(Range, ParsesTwoDecimalsAroundTheFirstComma) {
  const Range fallback{-32, 32};
  EXPECT_EQ(ParseRange("100,156", 128, fallback), (Range{-28, 28}));
  EXPECT_EQ(ParseRange("0,255", 128, fallback), (Range{-128, 127}));
  EXPECT_EQ(ParseRange(" 96 , +160 ", 128, fallback), (Range{-32, 32}));
  EXPECT_EQ(ParseRange("125,131", 124, fallback), (Range{1, 7}));
  EXPECT_EQ(ParseRange("-5,5", 0, fallback), (Range{-5, 5}));
  EXPECT_EQ(ParseRange("-32768,65535", 0, fallback), (Range{-32768, 65535}));
  EXPECT_EQ(ParseRange("1,2,3", 0, fallback), (Range{1, 2})) << "what follows does not count";
  EXPECT_EQ(ParseRange("7,7", 0, fallback), (Range{7, 7}));
}

TEST(Range, UsesTheFallbackForAnythingElse) {
  const Range fallback{1, 7};
  for (const char* text : {"", "a", "5", ",", ",,", "5,", ",5", "9,3", "1;2",
                           "1,99999999999999999999", "-32769,3", "0,65536", "+-1,3"}) {
    EXPECT_EQ(ParseRange(text, 128, fallback), fallback) << '"' << text << '"';
  }
}
