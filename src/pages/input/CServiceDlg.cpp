#include "pages/input/CServiceDlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

CServiceDlg::CServiceDlg(CWnd* parent) : RowDialog(TemplateId::Service, kServiceRows, parent) {}

std::vector<Notification> CServiceDlg::OwnNotifications() const {
  return {Clicked(20380, &CServiceDlg::OnBnClickedSvcBtnclose)};
}

bool CServiceDlg::OnInitDialog() {
  model_.ModelCode = ModelCode;
  RowDialog::OnInitDialog();
  Refresh();
  return true;
}
