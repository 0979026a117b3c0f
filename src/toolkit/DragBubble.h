#pragma once

class CSliderCtrl;

/// While the user moves a slider, shows beside its handle the number that releasing it would send.
/// User-interface thread only.
void AttachDragBubble(CSliderCtrl& slider);
