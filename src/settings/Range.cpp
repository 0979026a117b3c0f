#include "settings/Range.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>

namespace AdvancedControl {

namespace {

// Parses blanks, a sign and digits, and ignores what follows the digits.
std::optional<int> ParseNumber(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
  int number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number < std::numeric_limits<std::int16_t>::min() ||
      number > std::numeric_limits<std::uint16_t>::max()) {
    return {};
  }
  return number;
}

}  // namespace

Range ParseRange(std::string_view text, int bias, Range fallback) {
  const auto comma = text.find(',');
  if (comma == std::string_view::npos) return fallback;
  const auto minimum = ParseNumber(text.substr(0, comma));
  const auto maximum = ParseNumber(text.substr(comma + 1));
  if (!minimum || !maximum || *minimum > *maximum) return fallback;
  return {*minimum - bias, *maximum - bias};
}

}  // namespace AdvancedControl
