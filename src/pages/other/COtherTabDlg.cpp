#include "pages/other/COtherTabDlg.h"

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "settings/SharedRows.h"
#include "toolkit/CComboBox.h"
#include "toolkit/MessageBox.h"

namespace {

constexpr int kPowerOn = 20100;
constexpr int kPowerOff = 20101;
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
  const bool accepted = Perform(*projector, Named(PjtOperation::SetPowerOn)).accepted;
  InitDisp();
  if (!accepted) ShowError(ErrorText::PowerRefused);
}

void COtherTabDlg::OnBnClickedOtherPowerOff() {
  if (!Ask(ErrorText::PowerOffQuestion)) return;
  projector->SetPowerOff();
  InitDisp();
  // The command has no result: a projector that is still on, or does not say, tells the refusal.
  if (!runningState_ || runningState_ == shared::kRunning) ShowError(ErrorText::PowerRefused);
}

void COtherTabDlg::OnCbnSelchangeOtherInput() {
  const auto source = Item<CComboBox>(kInputSource).SelectedValue();
  if (!source) return;
  const bool accepted = Perform(*projector, Set(CommandCode::InputSource), *source).accepted;
  InitDisp();
  if (!accepted) ShowError(ErrorText::InputSourceRefused);
}
