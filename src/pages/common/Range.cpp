#include "pages/common/Range.h"

#include <charconv>
#include <limits>
#include <optional>

namespace {

std::optional<int> ParseNumber(std::string_view text) {
  constexpr std::string_view blanks = " \t\r\n";
  const auto begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos) return {};
  text = text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
  if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
  int number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || stop != text.data() + text.size()) return {};
  if (number < std::numeric_limits<std::int16_t>::min() ||
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
