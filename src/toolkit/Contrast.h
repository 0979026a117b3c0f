#pragma once

#include <QPalette>

#include "Namespace.h"

namespace AdvancedControl {

/// The contrast of two opaque colours: from 1 for equal ones to 21 for black and white.
double ContrastOf(const QColor& first, const QColor& second);

/// `color`, made lighter or darker until its contrast to `background` is at least `contrast`, which
/// may be up to 4.5.
QColor ReadableOn(const QColor& background, const QColor& color, double contrast);

/// `palette` with texts of disabled controls that can be read.
QPalette WithReadableDisabledTexts(QPalette palette);

}  // namespace AdvancedControl
