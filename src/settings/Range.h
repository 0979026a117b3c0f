#pragma once

#include <string_view>

#include "ProjectorSettingsExport.h"

inline namespace AdvancedControl {

/// Bounds of an adjustment, both included.
struct Range {
  int minimum = 0;
  int maximum = 0;

  friend bool operator==(const Range&, const Range&) = default;
};

/// A model's range text, "minimum,maximum" in device units, as shown values: device value − bias.
/// A text that is empty, does not have a decimal 16-bit integer on both sides of its first comma,
/// or has them in the wrong order gives `fallback`, which is in shown values already.
PROJECTOR_SETTINGS_EXPORT Range ParseRange(std::string_view text, int bias, Range fallback);

}  // namespace AdvancedControl
