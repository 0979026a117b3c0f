#pragma once

class CSliderCtrl;

/// Shows beside a slider's handle, while it is dragged, the number that letting go would send.
void AttachDragBubble(CSliderCtrl& slider);
