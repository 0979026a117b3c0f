#pragma once

#include <QMetaObject>

#include "Namespace.h"
#include "toolkit/InputDialog.h"

namespace AdvancedControl {

/// Calls `act` with the control, asynchronously: its handler may wait for the projector or for a
/// message box, and the assistive technology must not wait with it. Like other input, actions are
/// dropped while a handler runs or if the control is disabled. User-interface thread only.
template <class Control, class Act>
void ActLikeAUser(Control* control, Act act) {
  const auto actUnlessBusy = [control, act] {
    const auto* dialog = qobject_cast<const InputDialog*>(control->window());
    if (control->isEnabled() && (dialog == nullptr || !dialog->IsBusy())) act(*control);
  };
  QMetaObject::invokeMethod(control, actUnlessBusy, Qt::QueuedConnection);
}

}  // namespace AdvancedControl
