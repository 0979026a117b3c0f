#pragma once

#include <functional>

#include "AdvancedControlExport.h"
#include "toolkit/NotificationMap.h"
#include "toolkit/OwnedDialog.h"

/// A dialog built from a numbered template, either run modally or created as a child (a page of
/// another dialog), whose controls report to handlers. Layout, input and lifetime are those of the
/// classes that it derives from. User-interface thread only.
///
/// A handler may run an event loop: while a command waits, or for a message box or pop-up. What may
/// happen to the dialog meanwhile: it may be closed; `deleteLater` waits until the handler has
/// returned; its owner may die in any way. The dialog then leaves its owner and ends, together with
/// its pop-ups and message boxes, and is deleted after the handler if its maker said so
/// (`SetDeletedWithOwner`). It must not be deleted itself (`delete dialog`, or as a member of the
/// owner).
class ADVANCED_CONTROL_EXPORT CDialog : public OwnedDialog {
  Q_OBJECT

 public:
  /// `owner` may be null: a modal dialog then belongs to the dialog opened last, or to the active
  /// window.
  explicit CDialog(int templateNumber, CWnd* owner = nullptr);
  ~CDialog() override;

  /// Builds the controls from the template and initialises the dialog without showing it. False
  /// when no module of the resource chain has the template; the dialog then stays empty.
  bool Create();

  /// The same for a dialog beside the host's other windows: on screen before its first read waits
  /// for the projector. `place` runs when the dialog has its size and is not on screen yet.
  bool CreateShown(const std::function<void()>& place = {});

  /// Creates, shows and runs the dialog until it is closed; QDialog::Accepted or Rejected, or −1
  /// when it could not be created. It is on screen before its first read waits for the projector.
  /// While it runs, its owner takes no input. The death of the dialog, and the closing or death of
  /// its owner, end the run as Rejected.
  int DoModal();

  /// What the dialog's controls report; each dialog class states its own.
  virtual const NotificationMap& Notifications() const;

  void setVisible(bool visible) override;

 protected:
  /// Binds members to controls; runs before `OnInitDialog`.
  virtual void DoDataExchange() {}
  /// Fills and lays out; true leaves the focus to the toolkit.
  virtual bool OnInitDialog() { return true; }

  /// A control has changed by itself and its handler could not run: it may show what is not so.
  virtual void OnStale() {}

  /// Called by `OnInitDialog` when all is there but what is read from the projector: brings a
  /// dialog on screen that is to be seen before it is read.
  void ShowUnread();

 private:
  void CentreOnOwner();
  void ConnectNotifications();
  void RunHandler(const Notification& entry, CSliderCtrl* slider);

  bool named_ = false;  // for assistive technologies
  std::function<void()> showUnread_;
};
