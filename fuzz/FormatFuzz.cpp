// Any text as a message, with inserts of all kinds; the first byte is the length of one of them.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

#include "fuzz/Check.h"
#include "i18n/MessageFormat.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string_view own = text.substr(0, std::min<std::size_t>(data[0], text.size()));
  const CatalogInsert inserts[] = {own,
                                   std::numeric_limits<std::int64_t>::min(),
                                   std::numeric_limits<std::uint64_t>::max(),
                                   "-4096",
                                   0x1F600,
                                   "12",
                                   0,
                                   static_cast<const char*>(nullptr),
                                   4096,
                                   own};
  const auto expanded = ExpandMessage(text.substr(own.size()), inserts);
  Check(!expanded || expanded->size() <= kMaxMessageBytes);
  return 0;
}
