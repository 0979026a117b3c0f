#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "Namespace.h"
#include "simulator/SimulatedModel.h"
#include "simulator/SimulatedSlot.h"

namespace AdvancedControl {

/// The settings of a model, and where each command finds them. Does not change; any thread.
class SimulatedLayout {
 public:
  explicit SimulatedLayout(SimulatedModel model);

  /// Null if the model does not have the setting.
  const SimulatedSlot* Find(SettingId id) const;
  /// The setting of the generic commands with this code; null if the projector does not know it.
  const SimulatedSlot* FindCode(std::uint16_t code) const;

  std::vector<SettingId> present;  ///< In the order of the settings table.
  std::vector<SimulatedSlot> slots;
  std::array<std::vector<SimulatedRoute>, kOperationCount> routes;  ///< By operation.

 private:
  void Add(const Setting& setting, SimulatedModel& model);

  std::array<int, kSettingCount> slotOfSetting_{};  ///< −1 for a setting that is missing.
  std::map<std::uint16_t, std::size_t> slotOfCode_;
};

}  // namespace AdvancedControl
