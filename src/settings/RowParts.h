#pragma once

#include "Namespace.h"
#include "settings/CatalogNumbers.h"
#include "settings/ErrorNumbers.h"
#include "settings/Rows.h"

namespace AdvancedControl {

// Parts of rows on several groups of pages.

inline constexpr auto kSwitch = Numbered(ListText::SwitchOff, ListText::SwitchOn);
inline constexpr auto kMirrors = Numbered(ListText::MirrorNormal, ListText::MirrorHInverse,
                                          ListText::MirrorVInverse, ListText::MirrorHVInverse);

// Picture in picture.
inline constexpr auto kPinPPositions =
    Numbered(ListText::PinPUpperLeft, ListText::PinPUpperRight, ListText::PinPBottomLeft,
             ListText::PinPBottomRight);
inline constexpr auto kPinPAudios = Numbered(ListText::PinPAudioRgb, ListText::PinPInputVideo);
inline constexpr auto kPinPSizes =
    Numbered(ListText::PinPSizeOff, ListText::PinPLarge, ListText::PinPSmall);

inline constexpr ListRules kReadBack{.refused = Refused::ReadsBack};

/// The operations of a setting that has its own.
struct ValueOps {
  PjtOperation read, set, down, up;
};

/// A slider of a setting with its own operations.
constexpr ValueRow NamedSlider(std::string_view key, int caption, const ValueIds& ids,
                               const ValueOps& ops, int rangeText, Range range, int ticks = 1) {
  return {.key = key,
          .caption = caption,
          .ids = ids,
          .read = Named(ops.read),
          .set = Named(ops.set),
          .down = Named(ops.down),
          .up = Named(ops.up),
          .rangeText = rangeText,
          .range = range,
          .ticks = ticks};
}

constexpr ValueRow InUnit(int unit, ValueRow row) {
  row.unit = unit;
  return row;
}

}  // namespace AdvancedControl
