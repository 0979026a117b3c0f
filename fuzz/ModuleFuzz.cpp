// Any bytes as a message-table module, and each of its texts as a message with inserts.

#include <cstddef>
#include <cstdint>
#include <span>

#include "fuzz/Check.h"
#include "i18n/MessageFormat.h"
#include "i18n/MessageTable.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto table = MessageTable::Parse(std::as_bytes(std::span(data, size)));
  if (!table) return 0;
  Check(table->Count() > 0);
  const CatalogInsert inserts[] = {"text", 42, -1, "7"};
  for (std::size_t i = 0; i < table->Count(); ++i) {
    const CatalogMessage message = table->At(i);
    const auto expanded = ExpandMessage(message.text, inserts);
    Check(!expanded || expanded->size() <= kMaxMessageBytes);
    if (message.plain && message.text.size() <= kMaxMessageBytes) Check(expanded == message.text);
  }
  return 0;
}
