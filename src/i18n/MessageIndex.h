#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "Namespace.h"

namespace AdvancedControl {

/// Finds the position of an identifier in a sorted list in constant time. To bound its memory, it
/// indexes only identifiers with a low number in one of the first categories. May be read from
/// several threads at once.
class MessageIndex {
 public:
  /// Indexes identifiers, which must ascend.
  void Build(std::span<const std::uint32_t> ids);

  /// The identifier's position in the list; nothing if it is not in the list or not indexed.
  std::optional<std::size_t> Find(std::uint32_t id) const {
    for (const Category& category : categories_) {
      if (category.upper != id >> kNumberBits) continue;
      const std::size_t number = id & kNumberMask;
      const std::size_t slot = number < category.size ? slots_[category.begin + number] : 0;
      return slot != 0 ? std::optional(slot - 1) : std::nullopt;
    }
    return {};
  }

 private:
  static constexpr int kNumberBits = 16;
  static constexpr std::uint32_t kNumberMask = 0xFFFF;

  struct Category {
    std::uint32_t upper;  // above the number in an identifier
    std::size_t begin;    // of its slots
    std::size_t size;
  };

  std::vector<Category> categories_;
  std::vector<std::uint16_t> slots_;  // by number; a position plus 1, or 0
};

}  // namespace AdvancedControl
