#include "toolkit/CDialog.h"

#include <utility>

#include <QAbstractButton>
#include <QPushButton>
#include <QTabBar>
#include <QWindow>

#include "toolkit/Accessibility.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/FocusRing.h"

CDialog::CDialog(int templateNumber, CWnd* owner) : OwnedDialog(templateNumber, owner) {
  InstallAccessibility();
}

CDialog::~CDialog() {
  // Hiding moves the focus away from a control, which must not call a handler of a destroyed
  // derived class.
  for (const auto& [id, control] : Controls()) control->disconnect(this);
}

bool CDialog::Create() {
  if (isWindow() && IsBusy()) return false;  // a handler may be using the controls
  Destroy();
  if (!BuildControls()) return false;
  const Busy busy(this);
  Open();
  named_ = false;
  DoDataExchange();
  ConnectNotifications();
  OnInitDialog();
  FinishLayout();
  return true;
}

bool CDialog::CreateShown(const std::function<void()>& place) {
  showUnread_ = [this, place] {
    if (place) place();
    show();
  };
  const bool created = Create();
  ShowUnread();  // for a dialog that reads nothing
  return created;
}

void CDialog::ShowUnread() {
  const auto show = std::exchange(showUnread_, nullptr);
  if (!show || !IsCreated()) return;
  FinishLayout();
  show();
}

int CDialog::DoModal() {
  const QPointer<CDialog> self(this);
  BorrowOwner();
  const Busy ownerBusy(Owner());
  const Qt::WindowModality before = windowModality();
  modalityBefore_ = before;
  setWindowModality(Owner() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
  setResult(Rejected);
  if (!CreateShown([this] { CentreOnOwner(); })) return -1;
  const int opening = Openings();
  // The dialog may have been closed while its first page was being read.
  const int result = IsCreated() ? exec() : QDialog::result();
  if (self == nullptr) return Rejected;
  setWindowModality(before);  // exec() makes a dialog that was opened again modal
  ReturnOwner();
  if (Openings() != opening) return result;  // a host was told of the end and opened it again
  hide();
  Destroy();  // the event loop may have ended without closing the dialog
  return result;
}

void CDialog::CentreOnOwner() {
  if (parentWidget() != nullptr || Owner() == nullptr) return;
  winId();  // creates the native window, which is needed to stay above the owner
  windowHandle()->setTransientParent(Owner()->window()->windowHandle());
  if (!IsScrolled()) adjustSize();  // otherwise Qt limits it to two thirds of the screen
  CentreOnScreen(*this, *Owner()->window());
}

void CDialog::RunHandler(const Notification& entry, CSliderCtrl* slider) {
  auto* top = qobject_cast<CDialog*>(window());
  const QWidget* control = slider != nullptr ? slider : GetDlgItem(entry.id);
  if (control == nullptr) return;  // unreachable: only the dialog's own controls report
  const bool isBusy = top != nullptr && top->IsBusy();
  if (isBusy && KeepsInput(*control)) return KeepInput(entry, slider);
  if (isBusy && !AcceptsInputWhileBusy(*control)) {
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    if (button == nullptr || button->isCheckable()) top->Watch().OnStale();
    return;
  }
  const Busy busy(this);
  Handle(entry, slider);
}

void CDialog::Handle(const Notification& entry, CSliderCtrl* slider) {
  entry.handle(*this, slider);
}

void CDialog::ConnectNotifications() {
  for (const RowTemplate& row : Template()->rows) {
    const auto& [kind, id, text, entries] = row.controls.front();
    if (kind != ControlKind::Close || Notifications().Names(id)) continue;
    connect(&Item<QPushButton>(id), &QPushButton::clicked, this, &QDialog::accept);
  }
  for (const Notification& entry : Notifications().Entries()) {
    switch (entry.event) {  // unreachable: there is a case for each
      case Notification::Event::Clicked:
        connect(&Item<QAbstractButton>(entry.id), &QAbstractButton::clicked, this,
                [this, &entry] { RunHandler(entry, nullptr); });
        break;
      case Notification::Event::SelChange:
        if (auto* tabs = qobject_cast<QTabBar*>(GetDlgItem(entry.id))) {
          connect(tabs, &QTabBar::currentChanged, this,
                  [this, &entry] { RunHandler(entry, nullptr); });
        } else {
          connect(&Item<QComboBox>(entry.id), &QComboBox::activated, this,
                  [this, &entry] { RunHandler(entry, nullptr); });
        }
        break;
      case Notification::Event::HScroll:
        for (const auto& [id, control] : Controls()) {
          if (auto* slider = qobject_cast<CSliderCtrl*>(control)) {
            connect(slider, &CSliderCtrl::EndScroll, this,
                    [this, &entry, slider] { RunHandler(entry, slider); });
          }
        }
        break;
      case Notification::Event::Passive:
        break;
    }
  }
}

const NotificationMap& CDialog::Notifications() const {
  static const NotificationMap none{};
  return none;
}

void CDialog::setVisible(bool visible) {
  if (visible && isWindow() && IsOrphaned()) return;
  // Done when first shown, because most pages of a dialog are never shown.
  if (visible && Template() != nullptr && !std::exchange(named_, true)) NameControls(*this);
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): owned by its parent
  if (visible && isWindow() && focusRing_ == nullptr) focusRing_ = new FocusRing(*this);
  // Showing or hiding a page must not move the focus or end an event loop.
  if (isWindow()) {
    QDialog::setVisible(visible);
  } else {
    QWidget::setVisible(visible);  // NOLINT(bugprone-parent-virtual-call)
  }
  if (visible || !modalityBefore_) return;
  setWindowModality(*modalityBefore_);  // before the host is told of the end
  modalityBefore_.reset();
}
