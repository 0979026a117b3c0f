#include "pages/status/CStatusTabDlg.h"

#include <chrono>

#include <QApplication>

#include "resources/AdvancedControlResources.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"

namespace {

constexpr std::chrono::seconds kPause{5};

}  // namespace

CStatusTabDlg::CStatusTabDlg(CWnd* parent) : CTabPage(TemplateId::Status, kStatusRows, parent) {
  keepsUpToDate_.setCheckable(true);
  connect(&keepsUpToDate_, &QAction::toggled, this,
          [this](bool on) { on ? next_.start(kPause) : next_.stop(); });
  next_.callOnTimeout(this, &CStatusTabDlg::ReadIfQuiet);
}

bool CStatusTabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  keepsUpToDate_.setText(ListString(ListText::KeepUpToDate));
  Item<CComboBox>(ControlId::Status::Reset).Select(0);
  return true;
}

// The pause begins when the page has been read, however long that takes.
void CStatusTabDlg::ReadIfQuiet() {
  const auto* dialog = qobject_cast<const CDialog*>(window());
  const bool isBusy = dialog == nullptr || dialog->IsBusy() || projector->IsWaiting();
  if (!isVisible() || isBusy || QApplication::activePopupWidget() != nullptr) return;
  next_.stop();
  ReadAgain();
  if (keepsUpToDate_.isChecked()) next_.start(kPause);
}
