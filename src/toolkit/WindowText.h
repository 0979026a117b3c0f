#pragma once

#include <QString>

#include "AdvancedControlExport.h"
#include "Namespace.h"

class QWidget;

namespace AdvancedControl {

/// The caption of a control or dialog: a label's or button's text, a dialog's title. Controls
/// whose text is content, such as fields and lists, have none.
ADVANCED_CONTROL_EXPORT QString WindowText(const QWidget& window);

/// Sets the caption; does nothing on a control that has none. User-interface thread only, as is
/// `WindowText`.
ADVANCED_CONTROL_EXPORT void SetWindowText(QWidget& window, const QString& text);

}  // namespace AdvancedControl
