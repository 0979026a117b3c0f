#pragma once

#include <functional>
#include <optional>

#include <QPointer>

#include "AdvancedControlExport.h"
#include "toolkit/NotificationMap.h"
#include "toolkit/OwnedDialog.h"

namespace AdvancedControl {
class FocusRing;
}  // namespace AdvancedControl

/// A dialog built from a numbered template, either run modally or created as a child (a page of
/// another dialog), whose controls report to handlers. Its base classes handle layout, input and
/// lifetime. User-interface thread only.
///
/// A handler may run an event loop: while a command waits, or for a message box or pop-up.
/// Meanwhile the dialog may be closed; `deleteLater` waits until the handler has returned; and the
/// owner may die in any way. In that case the dialog leaves its owner and ends, together with its
/// pop-ups and message boxes, and is deleted after the handler if `SetDeletedWithOwner` says so.
/// The dialog must not be deleted directly (`delete dialog`, or as a member of the owner).
class ADVANCED_CONTROL_EXPORT CDialog : public AdvancedControl::OwnedDialog {
  Q_OBJECT

 public:
  /// `owner` may be null: a modal dialog then belongs to the window that `BelongTo` names, else to
  /// the active window or the dialog opened last.
  explicit CDialog(int templateNumber, CWnd* owner = nullptr);
  ~CDialog() override;

  /// Builds the controls from the template and initialises the dialog without showing it. False if
  /// no module of the resource chain has the template (the dialog then stays empty), or if a
  /// handler of the dialog is running.
  bool Create();

  /// The same, but also shows the dialog beside the host's other windows, before its first read
  /// waits for the projector. `place` is called when the size is known, before the dialog is shown.
  bool CreateShown(const std::function<void()>& place = {});

  /// Creates, shows and runs the dialog until it is closed. Returns QDialog::Accepted or Rejected,
  /// or −1 if it could not be created. It is on screen before its first read waits for the
  /// projector. While it runs, its owner takes no input. If the dialog dies, or its owner closes or
  /// dies, the result is Rejected.
  int DoModal();

  /// The notifications of the dialog's controls; each dialog class overrides this.
  virtual const AdvancedControl::NotificationMap& Notifications() const;

  void setVisible(bool visible) override;

 protected:
  /// Binds members to controls; runs before `OnInitDialog`.
  virtual void DoDataExchange() {}
  /// Fills the controls and completes the layout. True if the toolkit should set the focus.
  virtual bool OnInitDialog() { return true; }

  /// Calls the handler of a notification.
  virtual void Handle(const AdvancedControl::Notification& entry, CSliderCtrl* slider);
  /// Called instead while a handler runs, for a control whose input is kept.
  virtual void KeepInput(const AdvancedControl::Notification&, CSliderCtrl*) {}

  /// To be called by `OnInitDialog` once everything is ready except the values read from the
  /// projector. Shows the dialog if it should be on screen before its first read.
  void ShowUnread();

 private:
  void CentreOnOwner();
  void ConnectNotifications();
  void RunHandler(const AdvancedControl::Notification& entry, CSliderCtrl* slider);

  QPointer<AdvancedControl::FocusRing> focusRing_;  // only of a window
  bool named_ = false;  // whether the controls have names for assistive technologies
  std::function<void()> showUnread_;
  std::optional<Qt::WindowModality> modalityBefore_;  // while it runs modally
};
