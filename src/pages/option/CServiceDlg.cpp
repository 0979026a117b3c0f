#include "pages/option/CServiceDlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

CServiceDlg::CServiceDlg(CWnd* parent) : RowDialog(TemplateId::Service, kServiceRows, parent) {}

std::vector<Notification> CServiceDlg::OwnNotifications() const {
  return {Clicked(20380, &CServiceDlg::OnBnClickedSvcBtnclose)};
}

bool CServiceDlg::OnInitDialog() {
  model_.ModelCode = ModelCode;
  RowDialog::OnInitDialog();
  ShowUnread();
  Refresh();
  return true;
}

void CServiceDlg::OnCbnSelchangeSvcAtadjenbcomb() { Act(20374); }
void CServiceDlg::OnBnClickedSvcIrfrontchk() { Act(20375); }
void CServiceDlg::OnBnClickedSvcIrrearchk() { Act(20376); }
void CServiceDlg::OnBnClickedSvcIrtopchk() { Act(20377); }
void CServiceDlg::OnCbnSelchangeSvcIrfreqncomb() { Act(20378); }
void CServiceDlg::OnCbnSelchangeSvcIrfreqhcomb() { Act(20379); }
void CServiceDlg::OnCbnSelchangeSvcFocuslockcomb() { Act(20381); }
void CServiceDlg::OnBnClickedSvcBtnclose() { accept(); }
