#pragma once

#include <cstdint>
#include <span>

#include "Namespace.h"
#include "ProjectorCommonExport.h"
#include "simulator/Setting.h"

namespace AdvancedControl {

/// Every setting. A setting with two forms has two rows, for different page sets. Any thread.
PROJECTOR_COMMON_EXPORT std::span<const Setting> SettingsTable();

/// Command codes without a known meaning. Each stores the value written to it, initially 0. Any
/// thread.
PROJECTOR_COMMON_EXPORT std::span<const std::uint16_t> PlainCodes();

}  // namespace AdvancedControl
