// Any text as a model's range.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/Check.h"
#include "settings/Range.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kBias = 128;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const Range range = ParseRange(text, kBias, Range{0, 1});
  Check(range.minimum <= range.maximum);
  Check(range.minimum >= INT16_MIN - kBias && range.maximum <= UINT16_MAX);
  return 0;
}
