#pragma once

#include "Namespace.h"

class CComboBox;
class QAccessibleInterface;
class QWidget;

namespace AdvancedControl {

/// The interface of a list for assistive technologies. The caller takes ownership, as Qt does of
/// what its factories make. User-interface thread only.
QAccessibleInterface* MakeAccessibleList(CComboBox& combo);

/// The same for the drop-down of a list, which `view` shows; its children are the entries.
/// User-interface thread only.
QAccessibleInterface* MakeAccessibleDropDown(QWidget& view, CComboBox& combo);

}  // namespace AdvancedControl
