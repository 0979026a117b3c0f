#include "pages/option/CServiceDlg.h"

#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"

namespace {

namespace Id = ControlId::Service;

}  // namespace

CServiceDlg::CServiceDlg(CWnd* parent) : RowDialog(TemplateId::Service, kServiceRows, parent) {}

std::vector<Notification> CServiceDlg::OwnNotifications() const {
  return {Clicked(Id::Close, &CServiceDlg::OnBnClickedSvcBtnclose)};
}

bool CServiceDlg::OnInitDialog() {
  model_.ModelCode = ModelCode;
  RowDialog::OnInitDialog();
  ShowUnread();
  Refresh();
  return true;
}

void CServiceDlg::OnCbnSelchangeSvcAtadjenbcomb() { Act(Id::AutoAdjust); }
void CServiceDlg::OnBnClickedSvcIrfrontchk() { Act(Id::IrFront); }
void CServiceDlg::OnBnClickedSvcIrrearchk() { Act(Id::IrRear); }
void CServiceDlg::OnBnClickedSvcIrtopchk() { Act(Id::IrTop); }
void CServiceDlg::OnCbnSelchangeSvcIrfreqncomb() { Act(Id::IrFrequencyNormal); }
void CServiceDlg::OnCbnSelchangeSvcIrfreqhcomb() { Act(Id::IrFrequencyHigh); }
void CServiceDlg::OnCbnSelchangeSvcFocuslockcomb() { Act(Id::FocusLock); }
void CServiceDlg::OnBnClickedSvcBtnclose() { accept(); }
