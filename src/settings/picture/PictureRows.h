#pragma once

#include <array>
#include <utility>

#include "Namespace.h"
#include "settings/LegacyRows.h"

namespace AdvancedControl {

// Parts that the picture and image pages share.

inline constexpr auto kMyMemories =
    Numbered(ListText::MyMemoryBase, ListText::MyMemoryBase + 1, ListText::MyMemoryBase + 2,
             ListText::MyMemoryBase + 3, ListText::MyMemoryBase + 4, ListText::MyMemoryBase + 5,
             ListText::MyMemoryBase + 6, ListText::MyMemoryBase + 7);

// The gammas and colour temperatures that the user can customise. On the newest models the value
// decides: that of a gamma is at most, that of a colour temperature at least the limit. On the
// others the position in the list decides.
inline constexpr int kLastCustomGamma = 21;
inline constexpr int kFirstCustomColorTemp = 17;
inline constexpr int kLastCustomGammaPosition = 2;
inline constexpr int kCustomColorTempPosition = 3;

// The projector expects a gamma's position, not its value.
inline constexpr ListRules kGammaRules{.sendsPosition = true, .emptyIsNotRead = true};
inline constexpr ListRules kColorTempRules{.error = ErrorText::ColorTempRefused,
                                           .emptyIsNotRead = true};

// Shown values for models without their own range. The older picture pages show all sliders
// relative to the zero point, even phase and over scan; the image page shows the device values of
// these two.
inline constexpr Range kOverScan{0, 10};
inline constexpr Range kHPhase{-128, 120};
inline constexpr int kHPhaseTicks = 32;
inline constexpr Range kImageHPhase{0, 31};
// On model 3 the balances have the same wide range as color.
inline constexpr PerModel<Range> kColorBalance{{-32, 32}, {3}, {-63, 63}};

/// A number of at most two digits as text.
template <int number>
inline constexpr auto kNumberText = [] {
  constexpr int size = number < 0 ? -number : number;
  static_assert(size < 100);
  std::array<char, 4> text{};
  char* digit = text.data();
  if (number < 0) *digit++ = '-';
  if (size >= 10) *digit++ = static_cast<char>('0' + size / 10);
  *digit = static_cast<char>('0' + size % 10);
  return text;
}();

/// Entries with the texts `first` to `last`; their values are greater by `bias`.
template <int first, int last>
constexpr auto NumberEntries(int bias = 0) {
  return [bias]<int... offsets>(std::integer_sequence<int, offsets...>) {
    return std::array{ListEntry(kNumberText<first + offsets>.data(), first + offsets + bias)...};
  }
  (std::make_integer_sequence<int, last - first + 1>());
}

}  // namespace AdvancedControl
