#pragma once

#include <cstdint>
#include <optional>

/// What there is to say about a row after it was read.
enum class RowNote : std::uint8_t { None, Refused, NotOffered, Unanswered, NoEntries, Range };

/// What a page remembers of a row.
struct RowMemory {
  bool present = false;  ///< The model has the row.
  bool unread = false;   ///< What the row shows need not be so.
  RowNote note = RowNote::None;
  std::optional<int> opened{};  ///< Position read first since the dialog was opened,
  std::optional<int> source{};  ///< for this input source.
};
