#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// A page's constant list of 16-bit device values, ended by 0xFFFF: the position in a list is the
/// index of the value in the table.
class ValueTable {
 public:
  static constexpr std::uint16_t kEnd = 0xFFFF;

  /// `values` must hold `kEnd`.
  constexpr explicit ValueTable(std::span<const std::uint16_t> values) : values_(values) {}

  /// Index of the first entry equal to `value`, or −1 when the end comes first.
  constexpr int PositionOf(int value) const {
    for (std::size_t i = 0; values_[i] != kEnd; ++i) {
      if (values_[i] == value) return static_cast<int>(i);
    }
    return -1;
  }

  /// The value at a position inside the table.
  constexpr std::uint16_t ValueAt(int position) const {
    return values_[static_cast<std::size_t>(position)];
  }

 private:
  std::span<const std::uint16_t> values_;
};
