#pragma once

#include "Namespace.h"
#include "settings/RowParts.h"

namespace AdvancedControl {

// Parts that the pages with audio routing share.

inline constexpr auto kThreeAudios =
    Numbered(ListText::Off, ListText::Audio1, ListText::Audio2, ListText::Audio3);
inline constexpr auto kHdmiAudio = Numbered<1>("1", "2");

// The projector's own numbers of two inputs.
inline constexpr int kHdmiInput = 32;
inline constexpr int kMiuInput = 16;

}  // namespace AdvancedControl
