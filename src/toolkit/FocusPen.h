#pragma once

#include <QPen>

#include "Namespace.h"

class QWidget;

namespace AdvancedControl {

// How the focus of keys is shown. User-interface thread only.

/// The width of the line around a control that has the focus, in pixels.
inline constexpr int kFocusWidth = 2;

/// The pen for that line.
QPen FocusPen(const QWidget& control);
/// Whether the focus of `control` should be shown: it has it, and the user moves it with keys.
bool ShowsFocus(const QWidget& control);

}  // namespace AdvancedControl
