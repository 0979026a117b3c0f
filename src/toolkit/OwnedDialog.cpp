#include "toolkit/OwnedDialog.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QApplication>
#include <QEvent>

namespace AdvancedControl {

namespace {

// Open top-level dialogs, oldest first.
std::vector<OwnedDialog*>& Windows() {
  static std::vector<OwnedDialog*> windows;
  return windows;
}

std::vector<OwnedDialog*> PopUpsOf(const OwnedDialog& owner) {
  std::vector<OwnedDialog*> popUps;
  for (OwnedDialog* dialog : Windows()) {
    if (dialog != &owner && dialog->Owner() != nullptr && dialog->Owner()->window() == &owner) {
      popUps.push_back(dialog);
    }
  }
  return popUps;
}

// Also closes the message boxes of running handlers.
void ClosePopUps(const OwnedDialog& owner) {
  std::vector<QPointer<QDialog>> modals;
  for (OwnedDialog* popUp : PopUpsOf(owner)) modals.emplace_back(popUp);
  for (QDialog* box : owner.findChildren<QDialog*>()) {
    if (box->isWindow() && box->isVisible() && box->isModal()) modals.emplace_back(box);
  }
  for (const QPointer<QDialog>& modal : modals) {
    if (modal != nullptr) modal->reject();
  }
}

}  // namespace

OwnedDialog::OwnedDialog(int templateNumber, CWnd* owner)
    : InputDialog(templateNumber, owner), deletedWithOwner_(IsMadeWithNew()) {}

OwnedDialog::~OwnedDialog() { Destroy(); }

QWidget* OwnedDialog::Owner() const {
  if (parentWidget() != nullptr) return parentWidget();
  return namedOwner_ != nullptr ? namedOwner_ : borrowedOwner_;
}

void OwnedDialog::Open() {
  life_ = Life::Open;
  ++openings_;
  if (isWindow()) Windows().push_back(this);
  WatchOwner();
}

void OwnedDialog::Destroy() {
  if (life_ != Life::Open) return;
  life_ = Life::Closed;
  std::erase(Windows(), this);  // it may have become a part of its owner since
  if (isWindow()) OnDestroy();
}

void OwnedDialog::done(int result) {
  if (!isWindow()) return;
  ClosePopUps(*this);
  Leave();
  const int opening = openings_;
  InputDialog::done(result);
  if (openings_ == opening) Destroy();
}

bool OwnedDialog::HasPopUp() const { return !PopUpsOf(*this).empty(); }

void OwnedDialog::BorrowOwner() {
  if (parentWidget() != nullptr || namedOwner_ != nullptr) return;
  const auto& open = Windows();
  QWidget* active = QApplication::activeWindow();
  const auto isActive = [active](const OwnedDialog* dialog) { return dialog == active; };
  const auto isVisible = [](const OwnedDialog* dialog) { return dialog->isVisible(); };
  if (std::ranges::none_of(open, isActive)) {
    const auto newest = std::find_if(open.rbegin(), open.rend(), isVisible);
    if (newest != open.rend()) active = *newest;
  }
  // The active window may still be the drop-down of a list in this dialog.
  const QObject* part = active;
  while (part != nullptr && part != this) part = part->parent();
  borrowedOwner_ = part == nullptr ? active : nullptr;
}

void OwnedDialog::ReturnOwner() {
  borrowedOwner_.clear();
  if (Owner() == nullptr) disconnect(ownerDies_);
}

void OwnedDialog::WatchOwner() {
  disconnect(ownerDies_);
  if (Owner() == nullptr) return;
  ownerDies_ = connect(Owner(), &QObject::destroyed, this, &OwnedDialog::OnOwnerDying);
}

// Called before the owner deletes its children.
void OwnedDialog::OnOwnerDying() {
  if (!isWindow()) return;
  if (parentWidget() == nullptr) return End();
  if (deletedWithOwner_ && !IsBusy()) return;  // the owner deletes it like any child
  deletionWaits_ |= deletedWithOwner_;
  End();
  setParent(nullptr, windowFlags());
}

// Emits no signals, because the receivers may be parts of the owner.
void OwnedDialog::End() {
  const Life before = std::exchange(life_, Life::Orphaned);
  if (before == Life::Orphaned) return;
  Leave();
  OnOrphaned();
  for (OwnedDialog* popUp : PopUpsOf(*this)) popUp->End();
  for (QDialog* box : findChildren<QDialog*>()) {
    if (box->isWindow()) box->hide();
  }
  hide();
  if (before != Life::Open) return;
  std::erase(Windows(), this);
  if (isWindow()) OnDestroy();
}

bool OwnedDialog::IsOrphaned() const {
  const auto* top = qobject_cast<const OwnedDialog*>(window());
  return top != nullptr && top->life_ == Life::Orphaned;
}

bool OwnedDialog::event(QEvent* event) {
  if (event->type() == QEvent::DeferredDelete && IsBusy()) {
    deletionWaits_ = true;
    Leave();
    return true;
  }
  if (event->type() == QEvent::ParentChange && IsCreated()) WatchOwner();
  return InputDialog::event(event);
}

void OwnedDialog::AfterHandlers() {
  if (!deletionWaits_) return;
  // Qt may already have dispatched the dialog's own deferred deletion.
  auto* last = new QObject;  // NOLINT(bugprone-unhandled-exception-at-new): Qt ends without memory
  QObject::connect(last, &QObject::destroyed, [dialog = QPointer(this)] { delete dialog; });
  last->deleteLater();
}

}  // namespace AdvancedControl
