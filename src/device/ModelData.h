#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "Namespace.h"
#include "ProjectorCommonExport.h"

namespace AdvancedControl {

/// A name in a fixed 64-byte slot, zero-terminated unless it fills the slot; UTF-8.
using NameSlot = std::array<char, 64>;

/// The text in a slot, up to its first zero or the slot's end.
PROJECTOR_COMMON_EXPORT std::string_view NameText(const NameSlot& slot);

/// The beginning of a text, at most `most` bytes, cut at a character boundary; UTF-8.
PROJECTOR_COMMON_EXPORT std::string_view CutText(std::string_view text, std::size_t most);

/// A slot that holds `text`, cut at a character boundary if it is too long; the rest is zeros.
PROJECTOR_COMMON_EXPORT NameSlot MakeNameSlot(std::string_view text);

/// A capability list: only the first `count` entries are meaningful, though the arrays may hold
/// more.
struct CountedList {
  static constexpr int kCapacity = 32;

  std::int32_t count = 0;
  std::array<std::int32_t, kCapacity> values{};  ///< Device value of each entry.
  std::array<NameSlot, kCapacity> names{};

  /// `count` clamped to 0..kCapacity.
  int Size() const { return count < 0 ? 0 : count > kCapacity ? kCapacity : count; }

  bool operator==(const CountedList&) const = default;
};

/// The input sources of the model.
struct SourceList {
  static constexpr int kCapacity = 16;

  std::int32_t count = 0;
  std::array<NameSlot, kCapacity> names{};
  std::array<std::int32_t, kCapacity> firstValues{};   ///< Input source number of each entry.
  std::array<std::int32_t, kCapacity> secondValues{};  ///< Second host value of each entry.

  int Size() const { return count < 0 ? 0 : count > kCapacity ? kCapacity : count; }

  bool operator==(const SourceList&) const = default;
};

/// Position of each adjustment range in `ModelData::RangeTexts`.
namespace RangeIndex {
inline constexpr std::size_t AutoOff = 0;
inline constexpr std::size_t ColorTempAdjust = 1;  ///< Six: gain R, G, B, offset R, G, B.
inline constexpr std::size_t GammaPoint = 7;       ///< Eight: user gamma points 1..8.
inline constexpr std::size_t OverScan = 15;  ///< Of the older picture pages and the image pages.
inline constexpr std::size_t HPhase = 16;    ///< Of the same pages.
inline constexpr std::size_t Brightness = 17;
inline constexpr std::size_t Contrast = 18;
inline constexpr std::size_t KeystoneV = 19;
inline constexpr std::size_t KeystoneH = 20;
inline constexpr std::size_t Volume = 21;
inline constexpr std::size_t ColorBalR = 23;  ///< Of the older pages; also G and B.
inline constexpr std::size_t ColorBalG = 24;
inline constexpr std::size_t ColorBalB = 25;
inline constexpr std::size_t Sharpness = 26;
inline constexpr std::size_t Color = 27;
inline constexpr std::size_t Tint = 28;
inline constexpr std::size_t CustomGamma = 29;
inline constexpr std::size_t OsdBrightness = 30;
inline constexpr std::size_t ElectricZoom = 31;
inline constexpr std::size_t Treble = 32;
inline constexpr std::size_t Bass = 33;
inline constexpr std::size_t Count = 34;
}  // namespace RangeIndex

/// The host's data on the model of the selected projector. Does not change after intake.
struct ModelData {
  std::string ModelName;        ///< UTF-8, as given by the host.
  std::int32_t ModelCode = 0;   ///< Series code; refines tabs and rows.
  std::int32_t DialogType = 0;  ///< Page set 1..5; any other value has only the status page.
  SourceList MySourceList;
  CountedList WhisperList;
  CountedList AspectList;
  CountedList GammaList;
  CountedList ColorTempList;
  CountedList MyButtonList;
  std::int32_t ModelWord = 0;                ///< Stored for the host; no page reads it.
  std::array<std::int32_t, 2> ModelWords{};  ///< Stored for the host; no page reads them.
  /// "minimum,maximum" in device units, indexed by `RangeIndex`; empty for a page's default.
  std::array<std::string, RangeIndex::Count> RangeTexts;
};

}  // namespace AdvancedControl
