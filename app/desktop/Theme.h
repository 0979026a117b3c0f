#pragma once

#include <cstdint>

/// The colors of all windows.
enum class Theme : std::uint8_t { Desktop, Light, Dark };

/// Takes effect at once. `Desktop` follows the desktop's own colors.
void Apply(Theme theme);
