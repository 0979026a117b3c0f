#pragma once

#include <cstdint>

#include <QMetaObject>
#include <QPointer>

#include "AdvancedControlExport.h"
#include "toolkit/InputDialog.h"
#include "toolkit/MadeWithNew.h"

/// The lifetime of a dialog: from its creation to its closing, the death of its owner, and its own
/// deletion, which waits for running handlers. docs/waiting.md says what a host may do.
///
/// A window whose owner dies leaves the owner before that deletes its children, and ends, together
/// with its pop-ups and message boxes. User-interface thread only.
class ADVANCED_CONTROL_EXPORT OwnedDialog : public InputDialog, public MadeWithNew {
  Q_OBJECT

 public:
  /// Whether the dialog may be deleted on the death of its owner: with it, or when the last handler
  /// has returned. Its maker says so: by `new`, unless this says otherwise. To be called with false
  /// by a maker that uses `new` and keeps the dialog itself, as a smart pointer does.
  void SetDeletedWithOwner(bool deleted) { deletedWithOwner_ = deleted; }

  /// The parent, or the window that a running dialog without a parent belongs to; may be null.
  QWidget* Owner() const { return parentWidget() != nullptr ? parentWidget() : owner_.data(); }

  /// Whether the dialog's window ended because its owner died; until it is created again.
  bool IsOrphaned() const;

  void done(int result) override;

 protected:
  OwnedDialog(int templateNumber, CWnd* owner);
  ~OwnedDialog() override;

  /// The dialog is created: it is open from now on until it closes, its owner dies, or `Destroy`.
  void Open();
  /// Runs `OnDestroy` if the dialog is open. A class that overrides `OnDestroy` calls this in its
  /// destructor.
  void Destroy();
  bool IsCreated() const { return life_ == Life::Open; }

  /// Runs once when an open top-level dialog closes or dies.
  virtual void OnDestroy() {}
  /// The owner died while the dialog was open: from now on nothing may be sent. Handlers may still
  /// be running.
  virtual void OnOrphaned() {}

  /// While a dialog without a parent runs, the dialog that the user works on is its owner. It
  /// becomes no parent: the dialog is its creator's and must not die with it.
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
  QPointer<QWidget> owner_;  // borrowed
  QMetaObject::Connection ownerDies_;
};
