#pragma once

#include <array>
#include <utility>

#include "Namespace.h"
#include "settings/LegacyRows.h"

namespace AdvancedControl {

// What the picture and image pages share.

inline constexpr auto kMyMemories =
    Numbered(ListText::MyMemoryBase, ListText::MyMemoryBase + 1, ListText::MyMemoryBase + 2,
             ListText::MyMemoryBase + 3, ListText::MyMemoryBase + 4, ListText::MyMemoryBase + 5,
             ListText::MyMemoryBase + 6, ListText::MyMemoryBase + 7);

// The gammas and colour temperatures that the user can shape: up to and from a value on the newest
// models, by their position on the others.
inline constexpr int kLastCustomGamma = 21;
inline constexpr int kFirstCustomColorTemp = 17;
inline constexpr int kLastCustomGammaPosition = 2;
inline constexpr int kCustomColorTempPosition = 3;

// A gamma is taken by its position, not by its value.
inline constexpr ListRules kGammaRules{.sendsPosition = true, .emptyIsNotRead = true};
inline constexpr ListRules kColorTempRules{.error = ErrorText::ColorTempRefused,
                                           .emptyIsNotRead = true};

// Shown values where the model tells no range. The older picture pages count every slider around
// the zero point, phase and over scan too; the image page shows both as the projector counts them.
inline constexpr Range kOverScan{0, 10};
inline constexpr Range kHPhase{-128, 120};
inline constexpr int kHPhaseTicks = 32;
inline constexpr Range kImageHPhase{0, 31};
// Model 3 counts a balance as it counts color, in a wider range.
inline constexpr PerModel<Range> kColorBalance{{-32, 32}, {3}, {-63, 63}};

/// A number of two digits at most, as text.
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

/// Entries that show `first` to `last` and stand for `bias` more.
template <int first, int last>
constexpr auto NumberEntries(int bias = 0) {
  return [bias]<int... offsets>(std::integer_sequence<int, offsets...>) {
    return std::array{ListEntry(kNumberText<first + offsets>.data(), first + offsets + bias)...};
  }
  (std::make_integer_sequence<int, last - first + 1>());
}

}  // namespace AdvancedControl
