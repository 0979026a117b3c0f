#include "pages/input/COtherTabDlg.h"

#include <QLabel>

#include "device/CommandCode.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"
#include "toolkit/MessageBox.h"

namespace {

constexpr int kPowerOn = 20100;
constexpr int kPowerOff = 20101;
constexpr int kPowerState = 20102;
constexpr int kInputSource = 20103;

// Running states; any other is standby.
constexpr int kOn = 1;
constexpr int kCoolingDown = 2;

int StateText(int state) {
  if (state == kCoolingDown) return ListText::PowerCoolingDown;
  return state == kOn ? ListText::On : ListText::Off;
}

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

void COtherTabDlg::RefreshOwn(const OwnRow& row) {
  runningState_ = Read(*projector, *row.read);
  const bool ready = runningState_ && runningState_ != kCoolingDown;
  GetDlgItem(kPowerOn)->setEnabled(ready);
  GetDlgItem(kPowerOff)->setEnabled(ready);
  Item<QLabel>(kPowerState)
      .setText(runningState_ ? ListString(StateText(*runningState_)) : QStringLiteral("-"));
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
  if (!runningState_ || runningState_ == kOn) ShowError(ErrorText::PowerRefused);
}

void COtherTabDlg::OnCbnSelchangeOtherInput() {
  const auto source = List(kInputSource).SelectedValue();
  if (!source) return;
  const bool accepted = Perform(*projector, Set(CommandCode::InputSource), *source).accepted;
  InitDisp();
  if (!accepted) ShowError(ErrorText::InputSourceRefused);
}
