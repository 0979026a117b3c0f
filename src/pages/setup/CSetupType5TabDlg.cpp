#include "pages/setup/CSetupType5TabDlg.h"

#include <QLineEdit>

#include "pages/rows/ListRowView.h"
#include "pages/rows/ValueRowView.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/MessageBox.h"

namespace {

constexpr int kInitialVolume = 16;
constexpr int kSaving = 1;

constexpr int kKeystoneV = 20310;
constexpr int kKeystoneH = 20311;
constexpr int kVolume = 20317;
constexpr int kCurrentInput = 20337;
constexpr int kStandbyMode = 20368;
constexpr int kReset = 20328;

}  // namespace

CSetupType5TabDlg::CSetupType5TabDlg(CWnd* parent)
    : CTabPage(TemplateId::SetupType5, kSetupType5Rows, parent) {}

std::vector<Notification> CSetupType5TabDlg::OwnNotifications() const {
  using Self = CSetupType5TabDlg;
  return {
      SelChange(kStandbyMode, &Self::OnCbnSelchangeCombStandbymode),
      HScroll(&Self::OnHScroll),
  };
}

bool CSetupType5TabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  ShowRow(kCurrentInput, Row(kVolume).memory.present);
  Row<ValueRowView>(kVolume).ShowNumber(kInitialVolume);
  return true;
}

void CSetupType5TabDlg::InitDisp() {
  Row(kReset).Prepare();
  CTabPage::InitDisp();
}

void CSetupType5TabDlg::ShowSource(std::optional<int> source) {
  Item<QLineEdit>(kCurrentInput).setText(source ? QString::number(*source) : QString());
}

void CSetupType5TabDlg::OnHScroll(CSliderCtrl& slider) {
  // Intended: a refused horizontal change restores the remembered vertical value instead of its
  // own.
  if (!Release(slider) && &slider == GetDlgItem(kKeystoneH) && !projector->IsAbandoned()) {
    slider.setValue(Row<ValueRowView>(kKeystoneV).Remembered());
  }
}

int CSetupType5TabDlg::DisableVolumeCtrl(bool disable) {
  if (disable) {
    Row<ValueRowView>(kVolume).Disable();
  } else {
    Row<ValueRowView>(kVolume).Enable();
  }
  return 0;
}

void CSetupType5TabDlg::OnCbnSelchangeCombStandbymode() {
  if (Item<CComboBox>(kStandbyMode).SelectedValue() == kSaving &&
      !Ask(ErrorText::StandbySavingQuestion)) {
    Row<ListRowView>(kStandbyMode).ReadBack();
    return;
  }
  Act(kStandbyMode);
}

void CSetupType5TabDlg::OnBnClickedStu5Btnatks() { Act(20305); }
void CSetupType5TabDlg::OnBnClickedStu5Btksvneg() { Act(20308); }
void CSetupType5TabDlg::OnBnClickedStu5Btksvpos() { Act(20309); }
void CSetupType5TabDlg::OnBnClickedStu5Btkshneg() { Act(20312); }
void CSetupType5TabDlg::OnBnClickedStu5Btkshpos() { Act(20313); }
void CSetupType5TabDlg::OnBnClickedStu5Btvolneg() { Act(20318); }
void CSetupType5TabDlg::OnBnClickedStu5Btvolpos() { Act(20319); }
void CSetupType5TabDlg::OnBnClickedStu5Btreset() { Act(20328); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Wspcomb() { Act(20315); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Mircomb() { Act(20316); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Speakercomb() { Act(20321); }
void CSetupType5TabDlg::OnBnClickedDzoomDecBtn() { Act(20331); }
void CSetupType5TabDlg::OnBnClickedDzoomIncBtn() { Act(20333); }
void CSetupType5TabDlg::OnBnClickedDshiftUpBtn() { Act(20335); }
void CSetupType5TabDlg::OnBnClickedDshiftDownBtn() { Act(20336); }
void CSetupType5TabDlg::OnBnClickedDshiftLeftBtn() { Act(20334); }
void CSetupType5TabDlg::OnBnClickedDshiftRightBtn() { Act(20350); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb1comb() { Act(20320); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp1comb() { Act(20369); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb2comb() { Act(20322); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp2comb() { Act(20370); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Ahdmicomb() { Act(20329); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Avidcomb() { Act(20323); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Asvidcomb() { Act(20324); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acompcomb() { Act(20325); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Amiucomb() { Act(20326); }
void CSetupType5TabDlg::OnCbnSelchangeStu5HdmiaudioComb() { Act(20330); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb1() { Act(20371); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer1() { Act(20360); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb2() { Act(20372); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer2() { Act(20361); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutHdmi() { Act(20362); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComponent() { Act(20363); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutSvideo() { Act(20364); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutVideo() { Act(20365); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutMiu() { Act(20366); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutStandby() { Act(20367); }
