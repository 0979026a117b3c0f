#pragma once

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "toolkit/HandlerWatch.h"
#include "toolkit/TemplateDialog.h"

namespace AdvancedControl {

/// Controls user input while handlers run. A handler may run an event loop, for example while a
/// command waits or a message box is open. Until the last handler returns, input to the controls is
/// dropped; only tabs, Close, Esc and the window's own close button act. They abandon the running
/// handlers, which must then return at once. User-interface thread only.
///
/// Esc and Enter never act on a page: Esc closes the dialog it belongs to, Enter presses the button
/// that has the focus and nothing else.
class ADVANCED_CONTROL_EXPORT InputDialog : public TemplateDialog {
  Q_OBJECT

 public:
  /// Whether a handler of the dialog's window is running; it may be waiting for the projector or
  /// for the user's answer.
  bool IsBusy() const { return busy_ > 0; }

  /// Marks `dialog`'s top-level dialog as running a handler: while this lives, the dialog is not
  /// deleted and its controls take no input. `dialog` may be null.
  class Busy {
   public:
    explicit Busy(const QWidget* dialog);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    InputDialog* top_;
  };

 Q_SIGNALS:
  /// Input to a widget was dropped because a handler runs.
  void InputDropped(const QWidget* target);

 protected:
  using TemplateDialog::TemplateDialog;

  /// The watch that follows the handlers of this window.
  virtual HandlerWatch& Watch();

  /// Abandons the running handlers, if any. This ends when the last of them returns, or calls
  /// `Return` because it knows that it is the last.
  void Leave();
  void Return();
  bool IsLeft() const { return left_; }

  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Called when no handler runs any more, after `HandlerWatch::OnIdle`.
  virtual void AfterHandlers() {}

  int busy_ = 0;       // number of running handlers, which are nested
  bool left_ = false;  // the running handlers were abandoned
};

}  // namespace AdvancedControl
