#pragma once

#include "Namespace.h"

class CSliderCtrl;

namespace AdvancedControl {

/// While the user moves a slider, shows beside its handle the number that releasing it would send.
/// User-interface thread only.
void AttachDragBubble(CSliderCtrl& slider);

}  // namespace AdvancedControl
