#include "pages/setup/CSetupType5TabDlg.h"

#include <QLineEdit>

#include "pages/rows/ListRowView.h"
#include "pages/rows/ValueRowView.h"
#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/MessageBox.h"

namespace {

namespace Id = ControlId::SetupType5;

constexpr int kInitialVolume = 16;
constexpr int kSaving = 1;

}  // namespace

CSetupType5TabDlg::CSetupType5TabDlg(CWnd* parent)
    : CTabPage(TemplateId::SetupType5, kSetupType5Rows, parent) {}

std::vector<Notification> CSetupType5TabDlg::OwnNotifications() const {
  using Self = CSetupType5TabDlg;
  return {
      SelChange(Id::StandbyMode, &Self::OnCbnSelchangeCombStandbymode),
      HScroll(&Self::OnHScroll),
  };
}

bool CSetupType5TabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  ShowRow(Id::CurrentInput, Row(Id::Volume).memory.present);
  Row<ValueRowView>(Id::Volume).Widgets().ShowNumber(kInitialVolume);
  return true;
}

void CSetupType5TabDlg::InitDisp() {
  Row(Id::ResetExecute).Prepare();
  CTabPage::InitDisp();
}

void CSetupType5TabDlg::ShowSource(std::optional<int> source) {
  Item<QLineEdit>(Id::CurrentInput).setText(source ? QString::number(*source) : QString());
}

void CSetupType5TabDlg::OnHScroll(CSliderCtrl& slider) {
  // Intended: a refused horizontal change restores the remembered vertical value instead of its
  // own.
  if (!Release(slider) && &slider == GetDlgItem(Id::KeystoneH) && !projector->IsAbandoned()) {
    slider.setValue(Row<ValueRowView>(Id::KeystoneV).Remembered());
  }
}

int CSetupType5TabDlg::DisableVolumeCtrl(bool disable) {
  if (disable) {
    Row<ValueRowView>(Id::Volume).Widgets().Disable();
  } else {
    Row<ValueRowView>(Id::Volume).Widgets().Enable();
  }
  return 0;
}

void CSetupType5TabDlg::OnCbnSelchangeCombStandbymode() {
  if (Item<CComboBox>(Id::StandbyMode).SelectedValue() == kSaving &&
      !Ask(ErrorText::StandbySavingQuestion)) {
    Row<ListRowView>(Id::StandbyMode).ReadBack();
    return;
  }
  Act(Id::StandbyMode);
}

void CSetupType5TabDlg::OnBnClickedStu5Btnatks() { Act(Id::AutoKeystone); }
void CSetupType5TabDlg::OnBnClickedStu5Btksvneg() { Act(Id::KeystoneVMinus); }
void CSetupType5TabDlg::OnBnClickedStu5Btksvpos() { Act(Id::KeystoneVPlus); }
void CSetupType5TabDlg::OnBnClickedStu5Btkshneg() { Act(Id::KeystoneHMinus); }
void CSetupType5TabDlg::OnBnClickedStu5Btkshpos() { Act(Id::KeystoneHPlus); }
void CSetupType5TabDlg::OnBnClickedStu5Btvolneg() { Act(Id::VolumeMinus); }
void CSetupType5TabDlg::OnBnClickedStu5Btvolpos() { Act(Id::VolumePlus); }
void CSetupType5TabDlg::OnBnClickedStu5Btreset() { Act(Id::ResetExecute); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Wspcomb() { Act(Id::Whisper); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Mircomb() { Act(Id::Mirror); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Speakercomb() { Act(Id::Speaker); }
void CSetupType5TabDlg::OnBnClickedDzoomDecBtn() { Act(Id::DZoomMinus); }
void CSetupType5TabDlg::OnBnClickedDzoomIncBtn() { Act(Id::DZoomPlus); }
void CSetupType5TabDlg::OnBnClickedDshiftUpBtn() { Act(Id::DShiftVPlus); }
void CSetupType5TabDlg::OnBnClickedDshiftDownBtn() { Act(Id::DShiftVMinus); }
void CSetupType5TabDlg::OnBnClickedDshiftLeftBtn() { Act(Id::DShiftHMinus); }
void CSetupType5TabDlg::OnBnClickedDshiftRightBtn() { Act(Id::DShiftHPlus); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb1comb() { Act(Id::AudioRgb1); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp1comb() { Act(Id::AudioComputer1); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Argb2comb() { Act(Id::AudioRgb2); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acomp2comb() { Act(Id::AudioComputer2); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Ahdmicomb() { Act(Id::AudioHdmi); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Avidcomb() { Act(Id::AudioVideo); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Asvidcomb() { Act(Id::AudioSVideo); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Acompcomb() { Act(Id::AudioComponent); }
void CSetupType5TabDlg::OnCbnSelchangeStu5Amiucomb() { Act(Id::AudioMiu); }
void CSetupType5TabDlg::OnCbnSelchangeStu5HdmiaudioComb() { Act(Id::HdmiAudio); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb1() { Act(Id::MonitorOutRgb1); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer1() { Act(Id::MonitorOutComputer1); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutRgb2() { Act(Id::MonitorOutRgb2); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComputer2() { Act(Id::MonitorOutComputer2); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutHdmi() { Act(Id::MonitorOutHdmi); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutComponent() { Act(Id::MonitorOutComponent); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutSvideo() { Act(Id::MonitorOutSVideo); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutVideo() { Act(Id::MonitorOutVideo); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutMiu() { Act(Id::MonitorOutMiu); }
void CSetupType5TabDlg::OnCbnSelchangeCombMonitoroutStandby() { Act(Id::MonitorOutStandby); }
