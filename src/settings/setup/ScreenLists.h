#pragma once

#include "Namespace.h"
#include "device/CommandCode.h"
#include "settings/RowParts.h"

namespace AdvancedControl {

// Parts that the screen pages share.

inline constexpr ListEntry kBlanks[] = {{ListText::BlankBlue, 3},
                                        {ListText::BlankWhite, 5},
                                        {ListText::BlankBlack, 6},
                                        {ListText::BlankMyScreen, 32},
                                        {ListText::BlankOriginal, 64}};
inline constexpr ListEntry kStartups[] = {
    {ListText::BlankOriginal, 0}, {ListText::Off, 1}, {ListText::BlankMyScreen, 32}};

// A value without an entry does not change the selection.
inline constexpr ListRules kBlankRules{.noEntry = NoEntry::Keeps};
// The projector expects the position, but reports 32 for the third entry.
inline constexpr ListRules kStartupRules{.sendsPosition = true, .noEntry = NoEntry::Keeps};

/// One direction of the menu's position, limited only by the projector.
constexpr ValueRow MenuPosition(std::string_view key, const ValueIds& ids, std::uint16_t code) {
  return {.key = key,
          .caption = 132,
          .ids = ids,
          .code = code,
          .stepsOnly = true,
          .error = ErrorText::MenuPositionRefused,
          .greysField = true};
}

}  // namespace AdvancedControl
