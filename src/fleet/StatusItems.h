#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "Namespace.h"
#include "device/ModelData.h"
#include "fleet/LiveState.h"
#include "settings/Rows.h"

namespace AdvancedControl {

/// The states on the status page, which every model has.
enum class StatusItem : std::uint8_t {
  Power,
  Source,
  Error,
  Blank,
  Mute,
  Freeze,
  LampTime,
  FilterTime,
};

inline constexpr std::size_t kStatusItems = 8;
inline constexpr auto kAllStatusItems = [] {
  std::array<StatusItem, kStatusItems> items{};
  for (std::size_t i = 0; i < items.size(); ++i) items.at(i) = static_cast<StatusItem>(i);
  return items;
}();

/// How the page's row reads it.
const Call& ReadingOf(StatusItem item);
/// The item that a command reads; nothing for any other command.
std::optional<StatusItem> StatusItemOf(const PjtCommand& command);

/// Sets an item from its device value, which the row of the status page interprets. `model` may be
/// null.
void TakeStatus(LiveState& state, StatusItem item, int value, const ModelData* model);
/// Makes an item unknown. Hours are kept.
void ForgetStatus(LiveState& state, StatusItem item);
/// Sets the power state. A projector in standby has no source, blank, mute and freeze.
void TakePower(LiveState& state, PowerState power);

}  // namespace AdvancedControl
