#pragma once

#include <QIcon>

#include "Namespace.h"

namespace AdvancedControl {

/// Numbers of the arrow bitmaps.
namespace BitmapId {
inline constexpr int ArrowRight = 22154;
inline constexpr int ArrowDown = 22155;
inline constexpr int ArrowLeft = 22156;
inline constexpr int ArrowUp = 22157;
}  // namespace BitmapId

/// The arrow with this number, drawn in the size and colour of its button; an empty icon for any
/// other number. User-interface thread only.
QIcon ArrowBitmap(int number);

}  // namespace AdvancedControl
