#include "app/desktop/projectors/RowOrder.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>
#include <utility>

#include <QCollator>

void SortByNumbers(std::vector<int>& positions, Qt::SortOrder order,
                   const std::vector<double>& numbers) {
  std::vector<std::size_t> places(positions.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  const bool isUp = order == Qt::AscendingOrder;
  std::ranges::stable_sort(places, [&](std::size_t a, std::size_t b) {
    return isUp ? numbers[a] < numbers[b] : numbers[b] < numbers[a];
  });
  std::vector<int> sorted;
  sorted.reserve(positions.size());
  for (const std::size_t place : places) sorted.push_back(positions[place]);
  positions = std::move(sorted);
}

// Many have the same text, and comparing texts is slow.
void SortByTexts(std::vector<int>& positions, Qt::SortOrder order,
                 const std::vector<QString>& texts) {
  QCollator collator;
  collator.setNumericMode(true);
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  std::unordered_map<QString, std::size_t> distinct;
  std::vector<QCollatorSortKey> keys;
  std::vector<std::size_t> keyOf;
  for (const QString& text : texts) {
    const auto [known, isNew] = distinct.try_emplace(text, keys.size());
    if (isNew) keys.push_back(collator.sortKey(text));
    keyOf.push_back(known->second);
  }
  std::vector<std::size_t> places(keys.size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  std::ranges::sort(places,
                    [&](std::size_t a, std::size_t b) { return keys[a].compare(keys[b]) < 0; });
  std::vector<double> ranks(keys.size());
  for (std::size_t i = 0; i < places.size(); ++i) ranks[places[i]] = static_cast<double>(i);
  std::vector<double> numbers;
  numbers.reserve(texts.size());
  for (const std::size_t key : keyOf) numbers.push_back(ranks[key]);
  SortByNumbers(positions, order, numbers);
}
