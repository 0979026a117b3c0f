#pragma once

#include "Namespace.h"

namespace AdvancedControl {

class TemplateDialog;

/// Makes dialogs, lists and sliders accessible to assistive technologies, for reading and for
/// operating them. Further calls do nothing. User-interface thread only.
void InstallAccessibility();

/// Names the controls of a created dialog after their rows' captions, and makes each caption the
/// label of its row's value. User-interface thread only.
void NameControls(const TemplateDialog& dialog);

}  // namespace AdvancedControl
