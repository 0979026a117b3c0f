#include "pages/status/CStatusTabDlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"

CStatusTabDlg::CStatusTabDlg(CWnd* parent) : CTabPage(TemplateId::Status, kStatusRows, parent) {}

bool CStatusTabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  Item<CComboBox>(ControlId::Status::Reset).Select(0);
  return true;
}
