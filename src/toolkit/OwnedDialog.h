#pragma once

#include <cstdint>

#include <QMetaObject>
#include <QPointer>

#include "AdvancedControlExport.h"
#include "Namespace.h"
#include "toolkit/InputDialog.h"
#include "toolkit/MadeWithNew.h"

namespace AdvancedControl {

/// The lifetime of a dialog: its creation, its closing, the death of its owner, and its deletion,
/// which waits for running handlers. docs/waiting.md says what a host may do.
///
/// When the owner of a window dies, the window leaves it before the owner deletes its children, and
/// ends together with its pop-ups and message boxes. User-interface thread only.
class ADVANCED_CONTROL_EXPORT OwnedDialog : public InputDialog, public MadeWithNew {
  Q_OBJECT

 public:
  /// Sets whether the dialog is deleted when its owner dies: with the owner, or once the last
  /// handler has returned. The default is true for a dialog made with `new`, else false. Call it
  /// with false if you use `new` but keep the dialog in a smart pointer.
  void SetDeletedWithOwner(bool deleted) { deletedWithOwner_ = deleted; }

  /// Names the window to which a dialog without a parent belongs; otherwise a modal dialog belongs
  /// to the one that the user is working with. The window does not become the parent, because the
  /// dialog belongs to its creator and must not die with it. To be called before the dialog opens.
  void BelongTo(QWidget* owner) { namedOwner_ = owner; }

  /// The parent, or the window to which a dialog without a parent belongs; may be null.
  QWidget* Owner() const;

  /// Whether the dialog's window ended because its owner died. Reset when it is created again.
  bool IsOrphaned() const;

  void done(int result) override;

 protected:
  OwnedDialog(int templateNumber, CWnd* owner);
  ~OwnedDialog() override;

  /// Opens the dialog, until it closes, its owner dies, or `Destroy` is called.
  void Open();
  /// How often it was opened. A host that is told of the end may open it again before the code that
  /// ended it goes on.
  int Openings() const { return openings_; }
  /// Runs `OnDestroy` if the dialog is open. A class that overrides `OnDestroy` calls this in its
  /// destructor.
  void Destroy();
  bool IsCreated() const { return life_ == Life::Open; }

  /// Called once when an open top-level dialog closes or dies.
  virtual void OnDestroy() {}
  /// Called when the owner has died while the dialog was open: nothing may be sent from now on.
  /// Handlers may still be running.
  virtual void OnOrphaned() {}

  /// Makes the dialog that the user is working with the owner of a running dialog that has none.
  void BorrowOwner();
  void ReturnOwner();

  /// Whether a modal dialog of this one is open.
  bool HasPopUp() const;

  bool event(QEvent* event) override;

 private:
  enum class Life : std::uint8_t { Closed, Open, Orphaned };

  void AfterHandlers() override;
  void WatchOwner();
  void OnOwnerDying();
  void End();

  bool deletedWithOwner_;
  bool deletionWaits_ = false;  // for running handlers
  Life life_ = Life::Closed;
  int openings_ = 0;
  QPointer<QWidget> namedOwner_;
  QPointer<QWidget> borrowedOwner_;
  QMetaObject::Connection ownerDies_;
};

}  // namespace AdvancedControl
