#include "pages/other/COtherTabDlg.h"

#include <QPushButton>

#include "pages/rows/RowOutcomes.h"
#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/RowUse.h"
#include "settings/SharedRows.h"
#include "toolkit/CComboBox.h"
#include "toolkit/MessageBox.h"

namespace {

namespace Id = ControlId::Other;

}  // namespace

COtherTabDlg::COtherTabDlg(CWnd* parent) : COtherTabDlg(TemplateId::Other, kOtherRows, parent) {}

COther4TabDlg::COther4TabDlg(CWnd* parent)
    : COtherTabDlg(TemplateId::Other4, kOther4Rows, parent) {}

std::vector<Notification> COtherTabDlg::OwnNotifications() const {
  return {
      Clicked(Id::PowerOn, &COtherTabDlg::OnBnClickedOtherPowerOn),
      Clicked(Id::PowerOff, &COtherTabDlg::OnBnClickedOtherPowerOff),
      SelChange(Id::InputSource, &COtherTabDlg::OnCbnSelchangeOtherInput),
  };
}

void COtherTabDlg::ShowState(int, std::optional<int> value) {
  runningState_ = value;
  const bool ready = value && value != shared::kCoolingDown;
  const int reason = value ? ListText::NotWhileCoolingDown : ListText::ReadRefused;
  Enable(Id::PowerOn, ready, reason);
  Enable(Id::PowerOff, ready, reason);
}

void COtherTabDlg::OnBnClickedOtherPowerOn() {
  const Sent sent = SendRow(*projector, Row(Id::Power).Row(), Model(), 1);
  InitDisp();
  if (sent != Sent::Accepted) ShowPowerRefused(Id::PowerOn);
}

void COtherTabDlg::OnBnClickedOtherPowerOff() {
  const std::string name = Context().ProjectorName();
  const bool isSure =
      name.empty() ? Ask(ErrorText::PowerOffQuestion)
                   : Ask(CatalogString(kErrorCategory, ErrorText::NamedPowerOffQuestion, name));
  if (!isSure) return;
  SendRow(*projector, Row(Id::Power).Row(), Model(), 0);
  InitDisp();
  // The command has no result. It counts as refused if the projector is still on or does not report
  // its state.
  if (!runningState_ || runningState_ == shared::kRunning) ShowPowerRefused(Id::PowerOff);
}

void COtherTabDlg::ShowPowerRefused(int button) {
  ShowRefusal(Row(Id::Power), Item<QPushButton>(button).text());
  ShowError(ErrorText::PowerRefused);
}

void COtherTabDlg::OnCbnSelchangeOtherInput() {
  const auto source = Item<CComboBox>(Id::InputSource).SelectedValue();
  if (!source) return;
  const QString text = Item<CComboBox>(Id::InputSource).currentText();
  const Sent sent = SendRow(*projector, Row(Id::InputSource).Row(), Model(), *source);
  InitDisp();
  if (sent == Sent::Accepted) return;
  ShowRefusal(Row(Id::InputSource), text);
  ShowError(ErrorText::InputSourceRefused);
}
