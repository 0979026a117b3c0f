#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "Namespace.h"
#include "device/CommandCode.h"
#include "simulator/SimulatedProjector.h"

namespace AdvancedControl {

/// A setting as the projectors of a model have it.
struct SimulatedProjector::Slot {
  const Setting* setting = nullptr;
  std::size_t index = 0;  // of its value
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

struct SimulatedProjector::Route {
  std::size_t slot = 0;
  Binding binding;
};

class SimulatedProjector::Layout {
 public:
  explicit Layout(SimulatedModel model);

  std::vector<SettingId> present;
  std::vector<Slot> slots;
  std::array<int, kSettingCount> slotOfSetting{};
  std::map<std::uint16_t, std::size_t> slotOfCode;
  std::array<std::vector<Route>, kOperationCount> routes;

 private:
  void Add(const Setting& setting, SimulatedModel& model);
};

}  // namespace AdvancedControl
