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

/// The arrow of this number, drawn at the size and in the colour of the button it stands on; an
/// empty icon for another number.
QIcon ArrowBitmap(int number);

}  // namespace AdvancedControl
