#include "pages/other/COtherTabDlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "settings/RowUse.h"
#include "settings/SharedRows.h"
#include "toolkit/CComboBox.h"
#include "toolkit/MessageBox.h"

namespace {

constexpr int kPowerOn = 20100;
constexpr int kPowerOff = 20101;
constexpr int kPower = 20102;
constexpr int kInputSource = 20103;

}  // namespace

COtherTabDlg::COtherTabDlg(CWnd* parent) : COtherTabDlg(TemplateId::Other, kOtherRows, parent) {}

COther4TabDlg::COther4TabDlg(CWnd* parent)
    : COtherTabDlg(TemplateId::Other4, kOther4Rows, parent) {}

std::vector<Notification> COtherTabDlg::OwnNotifications() const {
  return {
      Clicked(kPowerOn, &COtherTabDlg::OnBnClickedOtherPowerOn),
      Clicked(kPowerOff, &COtherTabDlg::OnBnClickedOtherPowerOff),
      SelChange(kInputSource, &COtherTabDlg::OnCbnSelchangeOtherInput),
  };
}

void COtherTabDlg::ShowState(std::optional<int> value) {
  runningState_ = value;
  const bool ready = value && value != shared::kCoolingDown;
  GetDlgItem(kPowerOn)->setEnabled(ready);
  GetDlgItem(kPowerOff)->setEnabled(ready);
}

void COtherTabDlg::OnBnClickedOtherPowerOn() {
  const Sent sent = SendRow(*projector, Row(kPower).Row(), Model(), 1);
  InitDisp();
  if (sent != Sent::Accepted) ShowError(ErrorText::PowerRefused);
}

void COtherTabDlg::OnBnClickedOtherPowerOff() {
  if (!Ask(ErrorText::PowerOffQuestion)) return;
  SendRow(*projector, Row(kPower).Row(), Model(), 0);
  InitDisp();
  // The command has no result. It counts as refused if the projector is still on or does not report
  // its state.
  if (!runningState_ || runningState_ == shared::kRunning) ShowError(ErrorText::PowerRefused);
}

void COtherTabDlg::OnCbnSelchangeOtherInput() {
  const auto source = Item<CComboBox>(kInputSource).SelectedValue();
  if (!source) return;
  const Sent sent = SendRow(*projector, Row(kInputSource).Row(), Model(), *source);
  InitDisp();
  if (sent != Sent::Accepted) ShowError(ErrorText::InputSourceRefused);
}
