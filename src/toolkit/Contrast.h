#pragma once

#include <QPalette>

#include "Namespace.h"

namespace AdvancedControl {

/// The contrast of two opaque colours: from 1 for equal ones to 21 for black and white. Any thread.
double ContrastOf(const QColor& first, const QColor& second);

/// `color`, made lighter or darker until its contrast to `background` is at least `contrast`, which
/// may be up to 4.5. Any thread.
QColor ReadableOn(const QColor& background, const QColor& color, double contrast);

/// The palette with legible texts of disabled controls. User-interface thread only.
QPalette WithReadableDisabledTexts(QPalette palette);

}  // namespace AdvancedControl
