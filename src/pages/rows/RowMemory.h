#pragma once

#include <cstdint>
#include <optional>

#include <QString>

#include "Namespace.h"

namespace AdvancedControl {

/// The note to show about a row after it was read.
enum class RowNote : std::uint8_t {
  None,
  Refused,
  NotOffered,
  Unanswered,
  NoEntries,
  OnlyShown,
  Range,
};

/// Whether a row with this note could be read.
constexpr bool IsRead(RowNote note) {
  return note == RowNote::None || note == RowNote::OnlyShown || note == RowNote::Range;
}

/// What a page remembers about a row.
struct RowMemory {
  bool present = false;   ///< The model has the row.
  bool unread = false;    ///< The value shown is unconfirmed.
  bool collects = false;  ///< It waits, and its further input is kept.
  RowNote note = RowNote::None;
  bool isKnown = false;         ///< It was read, or a change was accepted since.
  std::optional<int> known{};   ///< The position that the projector has; nothing for none.
  QString refusal{};            ///< Why the user's last action on it failed; empty if it did not.
  std::optional<int> opened{};  ///< First position read since the dialog was opened,
  std::optional<int> source{};  ///< for this input source.
};

}  // namespace AdvancedControl
