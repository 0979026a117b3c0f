#pragma once

#include "Namespace.h"

namespace AdvancedControl {

/// Numbers of the dialog templates.
namespace TemplateId {
inline constexpr int Advance = 22151;

#define PAGE(identifier, number, pageClass) inline constexpr int identifier = number;
#include "settings/Pages.def"

inline constexpr int Gamma = 20026;
inline constexpr int ColorTemp = 20028;
inline constexpr int Service = 20054;
}  // namespace TemplateId

/// Size of every page, in dialog units.
inline constexpr int kPageWidth = 405;
inline constexpr int kPageHeight = 220;

}  // namespace AdvancedControl
