#pragma once

#include "Namespace.h"

namespace AdvancedControl {

class TemplateDialog;

/// Makes dialogs, lists and sliders tell assistive technologies what they are, and take from them
/// what they take from a hand. Done once; further calls do nothing.
void InstallAccessibility();

/// Names the controls of a created dialog by their rows' captions, and makes each caption the
/// partner of its row's value.
void NameControls(const TemplateDialog& dialog);

}  // namespace AdvancedControl
