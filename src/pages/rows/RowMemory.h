#pragma once

#include <cstdint>
#include <optional>

#include "Namespace.h"

namespace AdvancedControl {

/// The note to show about a row after it was read.
enum class RowNote : std::uint8_t { None, Refused, NotOffered, Unanswered, NoEntries, Range };

/// What a page remembers about a row.
struct RowMemory {
  bool present = false;  ///< The model has the row.
  bool unread = false;   ///< The value shown is unconfirmed.
  RowNote note = RowNote::None;
  std::optional<int> opened{};  ///< First position read since the dialog was opened,
  std::optional<int> source{};  ///< for this input source.
};

}  // namespace AdvancedControl
