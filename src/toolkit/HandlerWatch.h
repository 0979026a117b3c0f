#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"

namespace AdvancedControl {

/// Follows the handlers of a dialog's window: when they begin and end, and when the user leaves
/// them. By default it does nothing. User-interface thread only.
class ADVANCED_CONTROL_EXPORT HandlerWatch {
 public:
  virtual ~HandlerWatch() = default;

  /// Called when the first handler begins.
  virtual void OnBusy() {}
  /// Called when the last handler has returned; `left` says whether the user left it.
  virtual void OnIdle(bool /*left*/) {}

  /// Called when the user leaves the running handlers: they must end at once, and neither send nor
  /// change anything more. `OnReturn` is called when they have returned.
  virtual void OnLeave() {}
  virtual void OnReturn() {}

  /// Called when a control has changed but its handler could not run, so that it may show a wrong
  /// value.
  virtual void OnStale() {}
};

}  // namespace AdvancedControl
