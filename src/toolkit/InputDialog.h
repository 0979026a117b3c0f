#pragma once

#include "AdvancedControlExport.h"
#include "toolkit/TemplateDialog.h"

/// What input does while handlers run. A handler may run an event loop: while a command waits, or
/// for a message box or pop-up. Until the last handler returns, what the user does to the controls
/// is dropped; only the ways out act: tabs, Close, Esc and the window's own button. A dialog can
/// leave its running handlers behind, which then are to end at once. User-interface thread only.
///
/// Esc and Enter never act on a page: Esc closes the dialog it belongs to, Enter presses the button
/// that has the focus and nothing else.
class ADVANCED_CONTROL_EXPORT InputDialog : public TemplateDialog {
  Q_OBJECT

 public:
  /// Whether a handler of the dialog's window runs; it may be waiting for the projector or for the
  /// answer to a box.
  bool IsBusy() const { return busy_ > 0; }

  /// A handler of `dialog`'s top-level dialog runs: while this lives, the dialog is not deleted and
  /// its controls take no input. `dialog` may be null.
  class Busy {
   public:
    explicit Busy(const QWidget* dialog);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    InputDialog* top_;
  };

 protected:
  using TemplateDialog::TemplateDialog;

  /// The first handler begins, and the last one has returned.
  virtual void OnBusy() {}
  virtual void OnIdle() {}

  /// The user leaves what the running handlers do: they are to end at once, send nothing more and
  /// change nothing. `OnReturn` says that they are gone.
  virtual void OnLeave() {}
  virtual void OnReturn() {}

  /// Leaves the running handlers, if any; they are gone when the last one returns, or when the one
  /// that knows them gone says so with `Return`.
  void Leave();
  void Return();
  bool IsLeft() const { return left_; }

  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// No handler runs any more, and `OnIdle` and `OnReturn` are done.
  virtual void AfterHandlers() {}

  int busy_ = 0;       // handlers that run, one in another
  bool left_ = false;  // what they do
};
