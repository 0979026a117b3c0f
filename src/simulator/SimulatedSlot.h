#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "Namespace.h"
#include "device/CommandCode.h"
#include "simulator/Setting.h"

namespace AdvancedControl {

/// A setting as the projectors of a model have it.
struct SimulatedSlot {
  const Setting* setting = nullptr;
  std::size_t index = 0;  ///< Of the slot.
  SettingRange range;
  std::vector<int> values;
  int standard = 0;

  bool Allows(int wanted) const {
    if (!values.empty()) return std::ranges::find(values, wanted) != values.end();
    return wanted >= range.minimum && wanted <= range.maximum;
  }

  /// The neighbouring value in the range or the list; it need not be allowed.
  std::optional<int> Next(int current, int step) const {
    if (values.empty()) return current + step;
    const auto found = std::ranges::find(values, current);
    if (found == values.end()) return std::nullopt;
    const auto position = found - values.begin() + step;
    if (position < 0 || position >= std::ssize(values)) return std::nullopt;
    return values[static_cast<std::size_t>(position)];
  }

  std::optional<int> FromWritten(int written, ValueForm form) const {
    switch (form) {
      case ValueForm::Device:
        return written;
      case ValueForm::OneBased:
        return written + 1;
      case ValueForm::TwoBased:
        return written + 2;
      case ValueForm::Shown:
        return written + CommandCode::kZeroPoint;
      case ValueForm::Position:
        if (values.empty()) return written;
        if (written < 0 || written >= std::ssize(values)) return std::nullopt;
        return values[static_cast<std::size_t>(written)];
    }
    return std::nullopt;
  }
};

/// A setting that a named operation reads or changes, and how.
struct SimulatedRoute {
  std::size_t slot = 0;  ///< Index of the setting's slot.
  Binding binding;
};

}  // namespace AdvancedControl
