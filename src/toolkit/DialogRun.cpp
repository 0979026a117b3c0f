// How a dialog comes up and ends, and what may happen to it while a handler runs.

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QWindow>

#include "toolkit/CDialog.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/InputGate.h"

std::vector<CDialog*>& CDialog::Windows() {
  static std::vector<CDialog*> dialogs;
  return dialogs;
}

bool CDialog::CreateShown(const std::function<void()>& place) {
  showUnread_ = [this, place] {
    if (place) place();
    show();
  };
  const bool created = Create();
  ShowUnread();  // a dialog that reads nothing
  return created;
}

void CDialog::ShowUnread() {
  const auto show = std::exchange(showUnread_, nullptr);
  if (!show || !created_) return;
  UpdateRows();
  GiveMnemonics();
  FitToScreen();
  show();
}

int CDialog::DoModal() {
  const QPointer<CDialog> self(this);
  if (parentWidget() == nullptr) AdoptOwner();
  const Busy ownerBusy(Owner());
  setWindowModality(Owner() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
  setResult(Rejected);
  if (!CreateShown([this] { CenterOnOwner(); })) return -1;
  // It may have been closed while its first page was read.
  const int result = created_ ? exec() : QDialog::result();
  if (self == nullptr) return Rejected;
  owner_.clear();
  if (parentWidget() == nullptr) disconnect(ownerDies_);
  hide();
  Destroy();  // the event loop may also have ended in other ways than by closing the dialog
  return result;
}

void CDialog::CenterOnOwner() {
  if (parentWidget() != nullptr || owner_ == nullptr) return;
  winId();  // a window of its own is needed to stay above the owner
  windowHandle()->setTransientParent(owner_->window()->windowHandle());
  if (scroll_ == nullptr) adjustSize();  // or Qt leaves it two thirds of the screen at most
  CentreOnScreen(*this, *owner_->window());
}

// The dialog that the user works on runs the one without a parent. It becomes no parent: this one
// is its creator's and must not die with it.
void CDialog::AdoptOwner() {
  const auto& open = Windows();
  QWidget* active = QApplication::activeWindow();
  const auto isActive = [active](const CDialog* dialog) { return dialog == active; };
  const auto isVisible = [](const CDialog* dialog) { return dialog->isVisible(); };
  if (std::ranges::none_of(open, isActive)) {
    const auto newest = std::find_if(open.rbegin(), open.rend(), isVisible);
    if (newest != open.rend()) active = *newest;
  }
  // The list of one of this dialog's own controls may still be the active window.
  const QObject* part = active;
  while (part != nullptr && part != this) part = part->parent();
  owner_ = part == nullptr ? active : nullptr;
}

void CDialog::WatchOwner() {
  disconnect(ownerDies_);
  if (!isWindow() || Owner() == nullptr) return;
  ownerDies_ = connect(Owner(), &QObject::destroyed, this, &CDialog::OnOwnerDying);
}

// Comes before the owner deletes its children.
void CDialog::OnOwnerDying() {
  if (!isWindow()) return;
  if (parentWidget() != nullptr) {
    if (onHeap_ && busy_ == 0) return;  // deleted as any child
    deletionWaits_ = deletionWaits_ || onHeap_;
    EndOrphaned();
    setParent(nullptr, windowFlags());
  } else {
    EndOrphaned();
  }
}

// Emits nothing: its listeners may be parts of the owner.
void CDialog::EndOrphaned() {
  if (std::exchange(orphaned_, true)) return;
  Leave();
  OnOrphaned();
  for (CDialog* dialog : std::vector(Windows())) {
    if (dialog != this && dialog->Owner() != nullptr && dialog->Owner()->window() == this) {
      dialog->EndOrphaned();
    }
  }
  for (QDialog* box : findChildren<QDialog*>()) {
    if (box->isWindow()) box->hide();
  }
  hide();
  Destroy();
}

bool CDialog::IsOrphaned() const {
  const auto* top = qobject_cast<const CDialog*>(window());
  return top != nullptr && top->orphaned_;
}

CDialog::Busy::Busy(const QWidget* dialog)
    : top_(dialog != nullptr ? qobject_cast<CDialog*>(dialog->window()) : nullptr) {
  if (top_ == nullptr || ++top_->busy_ > 1) return;
  InputGate::Close();
  top_->OnBusy();
}

CDialog::Busy::~Busy() {
  if (top_ == nullptr || --top_->busy_ > 0) return;
  InputGate::Open();
  top_->OnIdle();
  top_->Return();
  if (!top_->deletionWaits_) return;
  // The dialog's own deferred deletion may be used up.
  auto* last = new QObject;  // NOLINT(bugprone-unhandled-exception-at-new): Qt ends without memory
  QObject::connect(last, &QObject::destroyed, [dialog = QPointer(top_)] { delete dialog; });
  last->deleteLater();
}

void CDialog::Leave() {
  if (busy_ == 0 || std::exchange(left_, true)) return;
  OnLeave();
}

void CDialog::Return() {
  if (std::exchange(left_, false)) OnReturn();
}

bool CDialog::event(QEvent* event) {
  if (event->type() == QEvent::DeferredDelete && busy_ > 0) {
    deletionWaits_ = true;
    Leave();
    return true;
  }
  if (event->type() == QEvent::ParentChange && created_) WatchOwner();
  return QDialog::event(event);
}

void CDialog::done(int result) {
  if (!isWindow()) return;
  ClosePopUps();
  Leave();
  QDialog::done(result);
  Destroy();
}

bool CDialog::HasPopUp() const {
  return std::ranges::any_of(Windows(), [this](const CDialog* dialog) {
    return dialog != this && dialog->Owner() != nullptr && dialog->Owner()->window() == this;
  });
}

// Also the message boxes of running handlers.
void CDialog::ClosePopUps() {
  std::vector<QPointer<QDialog>> modals;
  for (CDialog* dialog : Windows()) {
    if (dialog != this && dialog->Owner() != nullptr && dialog->Owner()->window() == this) {
      modals.emplace_back(dialog);
    }
  }
  for (QDialog* box : findChildren<QDialog*>()) {
    if (box->isWindow() && box->isVisible() && box->isModal()) modals.emplace_back(box);
  }
  for (const QPointer<QDialog>& modal : modals) {
    if (modal != nullptr) modal->reject();
  }
}

void CDialog::Destroy() {
  if (!std::exchange(created_, false) || !isWindow()) return;
  std::erase(Windows(), this);
  OnDestroy();
}
