#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"

namespace AdvancedControl {

class TemplateDialog;

/// Lets assistive technologies read and operate dialogs, lists and sliders. Each dialog calls it; a
/// program's window that uses the lists must call it too. Further calls do nothing. User-interface
/// thread only.
ADVANCED_CONTROL_EXPORT void InstallAccessibility();

/// Names the controls of a created dialog after their rows' captions, and makes each caption the
/// label of its row's value. User-interface thread only.
void NameControls(const TemplateDialog& dialog);

}  // namespace AdvancedControl
