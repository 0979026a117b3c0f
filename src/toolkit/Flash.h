#pragma once

#include "Namespace.h"

class QRect;
class QWidget;

namespace AdvancedControl {

/// Highlights a place of a widget for a few seconds. User-interface thread only.
void Flash(QWidget& widget, const QRect& place);

}  // namespace AdvancedControl
