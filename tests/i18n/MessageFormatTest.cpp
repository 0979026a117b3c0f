#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "i18n/MessageFormat.h"

namespace {

using Case = std::tuple<std::string, std::vector<CatalogInsert>, std::string>;

std::vector<CatalogInsert> Numbers(int last) {
  std::vector<CatalogInsert> numbers;
  for (int i = 1; i <= last; ++i) numbers.emplace_back(i);
  return numbers;
}

constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr auto kHighest = std::numeric_limits<std::uint64_t>::max();

const Case kCases[] = {
    // Escapes.
    {"", {}, ""},
    {"100%% %. %! %q%", {}, "100% . ! q"},
    {"a%nb%rc%td%be% f", {}, "a\r\nb\rc\td e f"},
    {"kept%0dropped\r\n", {}, "kept"},
    {"%0", {}, ""},
    {"a\nb\r\nc\rd\r\n", {}, "a\r\nb\r\nc\r\nd\r\n"},
    {"%亮", {}, "亮"},
    // Inserts by number.
    {"%2-%1", {"a", "b"}, "b-a"},
    {"%99 %10 %1", Numbers(99), "99 10 1"},
    {"%123", Numbers(99), "123"},
    {"%1%%1", {"x"}, "x%1"},
    {"%1", {"%1%n"}, "%1%n"},
    // Conversions.
    {"[%1!5d!|%1!-5d!|%1!05d!|%1!+d!|%1!.3i!]", {42}, "[   42|42   |00042|+42|042]"},
    {"%1!x! %1!X! %1!#x! %1!o! %1!u!", {255}, "ff FF 0xff 377 255"},
    {"%1!u! %1!hu! %1!hhx! %1!I64x!", {-1}, "4294967295 65535 ff ffffffffffffffff"},
    {"%1!I32x! %1!lx! %1!wx! %1!hx!", {-1}, "ffffffff ffffffff ffffffff ffff"},
    {"%1!Ix!|%1!jx!|%1!zx!|%1!tx!|%1!llx!",
     {-1},
     "ffffffffffffffff|ffffffffffffffff|ffffffffffffffff|ffffffffffffffff|ffffffffffffffff"},
    {"%1 %1!d! %1!I64d! %1!lld! %1!I32u! %1!ld!",
     {std::int64_t{0x100000001}},
     "4294967297 1 4294967297 4294967297 1 1"},
    {"%1 %1!I64u!", {kHighest}, "18446744073709551615 18446744073709551615"},
    {"%1 %1!I64i!", {kLowest}, "-9223372036854775808 -9223372036854775808"},
    {"%1!p!", {255}, "00000000000000FF"},
    {"%1!c!%2!C!%3!wc!|%1!3c!|", {'A', 0x4EAE, "中文"}, "A亮中|  A|"},
    {"[%1!6s!|%1!-6S!|%1!.2ws!|%1!.0s!|%1!hs!]", {"亮度é"}, "[   亮度é|亮度é   |亮度||亮度é]"},
    {"%1!*.*s! %4 %5!*s!", {4, 2, "Bill", "Bob", 6, "Bill"}, "  Bi Bob   Bill"},
    {"[%1!*d!%3!*s!]", {-4, 7, -3, "x"}, "[7   x  ]"},
    // Inserts of the other kind.
    {"%1|%1!4s!|%2!d!|%3!*s!", {-7, "-12", "3", "x"}, "-7|  -7|-12|  x"},
    {"%1!c!%2!c!%3!c!", {0xD7FF, 0xE000, 0x10FFFF}, "\uD7FF\uE000\U0010FFFF"},
    {"%1", {static_cast<const char*>(nullptr)}, ""},
};

TEST(MessageFormat, ExpandsMessages) {
  for (const auto& [text, inserts, expected] : kCases) {
    EXPECT_EQ(ExpandMessage(text, inserts), expected) << text;
  }
  for (const char* malformed : {"%1!", "%1!!", "%1!d", "%1!d x", "%1!f!", "%1!n!", "%1!5%!",
                                "%1!I65d!", "%1!.-1d!", "%1!*s!", "%2!*d!"}) {
    EXPECT_FALSE(ExpandMessage(malformed, std::vector<CatalogInsert>{1})) << malformed;
  }
  const std::pair<const char*, std::vector<CatalogInsert>> unfit[] = {
      {"%2", {"only one"}}, {"text %1", {}},       {"%1!d!", {"12 apples"}},
      {"%1!d!", {""}},      {"%1!p!", {"text"}},   {"%1!*d!", {"wide", 1}},
      {"%1!c!", {0}},       {"%1!c!", {0x110000}}, {"%1!c!", {0xD800}},
      {"%1!c!", {0xDFFF}}};
  for (const auto& [text, inserts] : unfit) EXPECT_FALSE(ExpandMessage(text, inserts)) << text;
}

TEST(MessageFormat, SizesAreBounded) {
  const std::vector<CatalogInsert> one{1};
  EXPECT_EQ(ExpandMessage("%1!4096d!", one)->size(), 4096U);
  EXPECT_EQ(ExpandMessage("%1!#.4096x!", one)->size(), 4098U);
  for (const char* text : {"%1!4097d!", "%1!.4097d!", "%1!99999999999999999999d!"}) {
    EXPECT_FALSE(ExpandMessage(text, one)) << text;
  }
  EXPECT_FALSE(ExpandMessage("%1!*d!", std::vector<CatalogInsert>{kLowest, 1}));
  std::string wide;
  for (int i = 0; i < 16; ++i) wide += "%1!4096d!";
  EXPECT_EQ(ExpandMessage(wide, one)->size(), kMaxMessageBytes);
  EXPECT_EQ(ExpandMessage(wide + "%0", one)->size(), kMaxMessageBytes);
  EXPECT_FALSE(ExpandMessage(wide + ".", one));
  EXPECT_FALSE(ExpandMessage(wide + wide, one));
}

}  // namespace
