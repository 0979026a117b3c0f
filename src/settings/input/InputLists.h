#pragma once

#include "Namespace.h"
#include "device/CommandCode.h"
#include "settings/RowParts.h"

namespace AdvancedControl {

// Lists that the input pages share. Those called legacy are for the older pages only.

inline constexpr auto kColorSpaces =
    Numbered(ListText::Auto, "RGB", "SMPTE240", "REC709", "REC601");
inline constexpr auto kComponents = Numbered("Component", "Scart RGB");
inline constexpr ListEntry kLegacyVideoFormats[] = {
    {ListText::Auto, 10}, {"NTSC", 4},  {"PAL", 5},  {"SECAM", 9},
    {"NTSC 4.43", 2},     {"M-PAL", 8}, {"N-PAL", 7}};
inline constexpr auto kHdtvs = Numbered("1080i", "1035i");
inline constexpr auto kLegacyYcs =
    Numbered(ListText::Off, ListText::LegacyYcsNormal, ListText::LegacyYcsStillImage);
inline constexpr auto kLegacyNoiseReductions =
    Numbered<1>(ListText::NoiseReductionLow, ListText::LegacyNoiseReductionMiddle,
                ListText::NoiseReductionHigh);
inline constexpr auto kLegacyProgressive =
    Numbered(ListText::Off, ListText::LegacyProgressiveTv, ListText::LegacyProgressiveFilm);

// The setters expect positions, also for lists whose values differ from their positions.
inline constexpr ListRules kSendsPosition{.sendsPosition = true};
// A format without an entry is used as the position.
inline constexpr ListRules kFormatRules{.sendsPosition = true, .noEntry = NoEntry::IsPosition};

constexpr ListRow VideoFormatRow(int control) {
  return {"input.video-format",
          1173,
          control,
          kLegacyVideoFormats,
          Get(CommandCode::VideoFormat),
          Named(PjtOperation::SetVideoFormat),
          kFormatRules};
}

}  // namespace AdvancedControl
