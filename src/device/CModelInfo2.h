#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "Namespace.h"
#include "device/ModelData.h"

namespace AdvancedControl {

/// The full model record of a host, with up to five connections.
///
/// The byte layout of the record is fixed for a four-byte `String`, which the intake checks at
/// compile time. Hosts and this library exchange the members of `CModelInfo2`, the instance with
/// `std::string`.
template <typename String>
struct BasicModelInfo2 {
  static constexpr std::size_t kConnections = 5;
  static constexpr std::size_t kRangeSlots = 39;

  String ModelName;
  std::int32_t DialogType = 0;  ///< Page set 1..5.
  std::int32_t ModelCode = 0;   ///< Series code.

  std::array<std::int32_t, kConnections> ConnectionKinds{};       ///< 1 is a network connection.
  std::array<std::int32_t, kConnections> ConnectionNumbers{};     ///< Serial port, zero-based.
  std::array<std::int32_t, kConnections> ConnectionParameters{};  ///< Network port or line speed.
  std::array<NameSlot, kConnections> ConnectionTexts1{};          ///< Network address.
  std::array<NameSlot, kConnections> ConnectionTexts2{};

  std::int32_t Reserved1 = 0;
  std::array<std::int32_t, 2> ModelWords{};
  std::array<std::int32_t, 58> Reserved2{};

  /// "minimum,maximum" texts in the record's own order, five of them unused; see `RangeText`.
  std::array<String, kRangeSlots> RangeSlots;

  CountedList AspectList;
  CountedList WhisperList;
  std::int32_t ModelWord = 0;
  CountedList GammaList;
  CountedList ColorTempList;
  SourceList MySourceList;
  CountedList MyButtonList;

  /// The range text with this `RangeIndex`, less than `RangeIndex::Count`.
  String& RangeText(std::size_t index);
  const String& RangeText(std::size_t index) const;

  bool operator==(const BasicModelInfo2&) const = default;
};

/// The position in the record for each `RangeIndex`.
inline constexpr std::array<std::uint8_t, RangeIndex::Count> kRangeTextOrder{
    31,                              // auto power off
    13, 14, 15, 16, 17, 18,          // colour-temperature gains R, G, B and offsets R, G, B
    5,  6,  7,  8,  9,  10, 11, 12,  // user gamma points 1..8
    19, 20,                          // legacy picture and image pages
    0,  1,                           // brightness, contrast
    21, 22,                          // keystone V, H
    23,                              // volume
    32,                              // Other pages
    34, 35, 36,                      // legacy picture and setup pages
    4,  2,  3,                       // sharpness, colour, tint
    33,                              // legacy picture page
    37, 38,                          // legacy screen and setup pages
    27, 28,                          // treble, bass
};

template <typename String>
String& BasicModelInfo2<String>::RangeText(std::size_t index) {
  return RangeSlots[kRangeTextOrder[index]];
}

template <typename String>
const String& BasicModelInfo2<String>::RangeText(std::size_t index) const {
  return RangeSlots[kRangeTextOrder[index]];
}

}  // namespace AdvancedControl

/// The record that hosts and this library exchange. Strings are UTF-8.
using CModelInfo2 = AdvancedControl::BasicModelInfo2<std::string>;
