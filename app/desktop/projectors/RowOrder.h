#pragma once

#include <type_traits>
#include <vector>

#include <QString>
#include <Qt>

// Sorting of rows. Each key is computed once, so that ten thousand rows are sorted in a few
// milliseconds. Rows with equal keys keep their order.

/// Sorts positions by numbers, which are in the order of the positions.
void SortByNumbers(std::vector<int>& positions, Qt::SortOrder order,
                   const std::vector<double>& numbers);
/// Sorts positions by texts, without regard to case. Digits within a text sort as a number.
void SortByTexts(std::vector<int>& positions, Qt::SortOrder order,
                 const std::vector<QString>& texts);

/// Sorts positions by the number or text that `keyOf` returns for a position.
void SortBy(std::vector<int>& positions, Qt::SortOrder order, const auto& keyOf) {
  using Key = decltype(keyOf(0));
  std::vector<Key> keys;
  keys.reserve(positions.size());
  for (const int position : positions) keys.push_back(keyOf(position));
  if constexpr (std::is_same_v<Key, double>) {
    SortByNumbers(positions, order, keys);
  } else {
    SortByTexts(positions, order, keys);
  }
}
