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
/// What a command reads; nothing for any other command.
std::optional<StatusItem> StatusItemOf(const PjtCommand& command);

/// Takes a device value over as the page's row tells it. `model` may be null.
void TakeStatus(LiveState& state, StatusItem item, int value, const ModelData* model);
/// What the item tells is not known now; hours stay.
void ForgetStatus(LiveState& state, StatusItem item);
/// Takes the power state over: one that does not run plays nothing.
void TakePower(LiveState& state, PowerState power);

}  // namespace AdvancedControl
