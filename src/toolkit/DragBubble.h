#pragma once

#include "Namespace.h"

class CSliderCtrl;

namespace AdvancedControl {

/// Shows beside a slider's handle, while it is scrolled by hand, the number that letting go would
/// send.
void AttachDragBubble(CSliderCtrl& slider);

}  // namespace AdvancedControl
