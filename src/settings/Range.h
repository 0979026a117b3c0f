#pragma once

#include <string_view>

#include "Namespace.h"
#include "ProjectorSettingsExport.h"

namespace AdvancedControl {

/// Bounds of an adjustment, both included.
struct Range {
  int minimum = 0;
  int maximum = 0;

  friend bool operator==(const Range&, const Range&) = default;
};

/// Converts a model's range text, "minimum,maximum" in device units, to shown values (device value
/// − bias). Returns `fallback`, which is in shown values, if the text is empty, does not have a
/// decimal 16-bit integer on each side of its first comma, or has a minimum above its maximum. Any
/// thread.
PROJECTOR_SETTINGS_EXPORT Range ParseRange(std::string_view text, int bias, Range fallback);

}  // namespace AdvancedControl
