#pragma once

#include <functional>

#include <QString>

#include "Namespace.h"

class CSliderCtrl;

namespace AdvancedControl {

/// While the user moves a slider, shows the number that releasing it would send beside its handle.
/// `textOf` returns the text of a position; it must be callable as long as the user can move the
/// slider. User-interface thread only.
void AttachDragBubble(CSliderCtrl& slider, std::function<QString(int position)> textOf);

}  // namespace AdvancedControl
