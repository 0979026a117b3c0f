#include "pages/input/CInputTabDlg.h"

#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"

namespace {

constexpr int kHighestInput = 5;

}  // namespace

CInputTabDlg::CInputTabDlg(CWnd* parent) : CTabPage(TemplateId::Input, kInputRows, parent) {}

std::vector<Notification> CInputTabDlg::OwnNotifications() const {
  return {SelChange(ControlId::Input::PowerUpInput, &CInputTabDlg::OnSelchangePowerUpInput)};
}

// The first entry, "last input", is not a source and is always sent.
void CInputTabDlg::OnSelchangePowerUpInput() {
  const auto& list = Item<CComboBox>(ControlId::Input::PowerUpInput);
  if (list.currentIndex() == 0 || list.SelectedValue() <= kHighestInput) {
    Act(ControlId::Input::PowerUpInput);
  } else {
    Say(CatalogString(kListCategory, ListText::ChoiceGoesNowhere,
                      list.currentText().toStdString()));
  }
}
