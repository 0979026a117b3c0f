#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"

namespace AdvancedControl {

class TemplateDialog;

/// Makes dialogs, lists and sliders accessible to assistive technologies, for reading and for
/// operating them. Each dialog calls it, and so must a program's window that uses the lists. Further
/// calls do nothing. User-interface thread only.
ADVANCED_CONTROL_EXPORT void InstallAccessibility();

/// Names the controls of a created dialog after their rows' captions, and makes each caption the
/// label of its row's value. User-interface thread only.
void NameControls(const TemplateDialog& dialog);

}  // namespace AdvancedControl
