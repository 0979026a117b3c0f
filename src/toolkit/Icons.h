#pragma once

#include <cstdint>

#include <QIcon>

#include "AdvancedControlExport.h"
#include "Namespace.h"

class QWidget;

namespace AdvancedControl {

enum class IconName : std::uint8_t { Reset, Refresh, Information, Stop };

/// The size of an icon beside text: larger than usual for a large font.
QSize IconSize(const QWidget& beside);

/// The icon of the platform's theme, or our own drawing if the theme has none. Our drawings follow
/// the application's palette and are sharp in every size. `Reset` is always our own.
/// User-interface thread only.
QIcon ThemedIcon(IconName name);

/// Removes the icons of a dialog's OK, Cancel, Yes, No and Close buttons if the platform's theme
/// has none for them; Qt would use its own then. The buttons must exist.
ADVANCED_CONTROL_EXPORT void RemoveForeignButtonIcons(QWidget& dialog);

}  // namespace AdvancedControl
