#pragma once

#include <functional>

#include <QString>

#include "Namespace.h"

class CSliderCtrl;

namespace AdvancedControl {

/// While the user moves a slider, shows beside its handle the number that releasing it would send,
/// as `textOf` a position, which must be callable as long as the user can move the slider.
/// User-interface thread only.
void AttachDragBubble(CSliderCtrl& slider, std::function<QString(int position)> textOf);

}  // namespace AdvancedControl
