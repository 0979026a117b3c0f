#include "i18n/MessageIndex.h"

#include <algorithm>
#include <limits>

namespace AdvancedControl {

void MessageIndex::Build(std::span<const std::uint32_t> ids) {
  constexpr std::size_t kMostCategories = 8;
  constexpr std::uint32_t kMostNumbers = 8192;
  constexpr std::size_t kMostPositions = std::numeric_limits<std::uint16_t>::max();
  categories_.clear();
  slots_.clear();
  const std::size_t count = std::min(ids.size(), kMostPositions);
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint32_t upper = ids[i] >> kNumberBits;
    const std::uint32_t number = ids[i] & kNumberMask;
    if (categories_.empty() || categories_.back().upper != upper) {
      if (categories_.size() == kMostCategories) return;
      categories_.push_back({.upper = upper, .begin = slots_.size(), .size = 0});
    }
    if (number >= kMostNumbers) continue;
    categories_.back().size = number + 1;
    slots_.resize(categories_.back().begin + number + 1, 0);
    slots_.back() = static_cast<std::uint16_t>(i + 1);
  }
}

}  // namespace AdvancedControl
