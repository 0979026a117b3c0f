#pragma once

#include "Namespace.h"
#include "device/CommandCode.h"
#include "settings/CatalogNumbers.h"
#include "settings/ErrorNumbers.h"
#include "settings/Rows.h"

namespace AdvancedControl {

// Rows that several of the older pages have. A refused change shows an error, and the slider
// returns to the old value.

/// A slider of a setting with its zero point in the middle.
constexpr ValueRow CentredSlider(std::string_view key, int caption, const ValueIds& ids,
                                 std::uint16_t code, int error, int rangeText,
                                 PerModel<Range> range = Range{-32, 32}, int ticks = 4) {
  return {.key = key,
          .caption = caption,
          .ids = ids,
          .code = code,
          .bias = CommandCode::kZeroPoint,
          .rangeText = rangeText,
          .range = range,
          .ticks = ticks,
          .error = error};
}

/// A slider of a setting whose shown value is the device value.
constexpr ValueRow PlainSlider(std::string_view key, int caption, const ValueIds& ids,
                               std::uint16_t code, int error, int rangeText, Range range,
                               int ticks = 1) {
  ValueRow row = CentredSlider(key, caption, ids, code, error, rangeText, range, ticks);
  row.bias = 0;
  return row;
}

/// A number field with two buttons, limited only by the projector.
constexpr ValueRow SteppedField(std::string_view key, int caption, const ValueIds& ids,
                                std::uint16_t code, int error) {
  return {
      .key = key, .caption = caption, .ids = ids, .code = code, .stepsOnly = true, .error = error};
}

/// The picture's place on the screen: up raises the vertical position, left the horizontal one.
struct ArrowIds {
  int up = 0, down = 0, left = 0, right = 0, fieldV = 0, fieldH = 0;
};
constexpr ValueRow PositionV(std::string_view key, const ArrowIds& ids) {
  return SteppedField(key, 48, {.minus = ids.down, .plus = ids.up, .field = ids.fieldV},
                      CommandCode::PositionV, ErrorText::PositionRefused);
}
constexpr ValueRow PositionH(std::string_view key, const ArrowIds& ids) {
  return SteppedField(key, 48, {.minus = ids.right, .plus = ids.left, .field = ids.fieldH},
                      CommandCode::PositionH, ErrorText::PositionRefused);
}

}  // namespace AdvancedControl
