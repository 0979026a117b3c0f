#include "pages/option/COption5TabDlg.h"

#include <algorithm>
#include <iterator>

#include "pages/option/CServiceDlg.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "settings/option/MyButtons.h"

namespace {

constexpr int kMyButton1 = 20371;
constexpr int kService = 20373;

}  // namespace

COption5TabDlg::COption5TabDlg(CWnd* parent)
    : CTabPage(TemplateId::OptionType5, kOptionType5Rows, parent) {}

std::vector<Notification> COption5TabDlg::OwnNotifications() const {
  return {Clicked(kService, &COption5TabDlg::OnBnClickedOpt5Btnsvc)};
}

bool COption5TabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  myButtonCodes_.assign(std::begin(MyButtonTable), std::prev(std::end(MyButtonTable)));
  if (Row(kMyButton1).memory.present && Model().MyButtonList.Size() > 0) {
    myButtonCodes_.clear();
    for (const ListEntry& entry : MyButtonEntries(Model())) myButtonCodes_.push_back(entry.value);
  }
  return true;
}

int COption5TabDlg::GetMyBtnIdx(int code) const {
  const auto found = std::ranges::find(myButtonCodes_, code);
  return found == myButtonCodes_.end() ? -1 : static_cast<int>(found - myButtonCodes_.begin());
}

int COption5TabDlg::GetMyBtnVal(int index) const {
  const bool inside = index >= 0 && index < std::ssize(myButtonCodes_);
  return inside ? myButtonCodes_[static_cast<std::size_t>(index)] : -1;
}

void COption5TabDlg::OnCbnSelchangeOpt5Mybtn1comb() { Act(kMyButton1); }
void COption5TabDlg::OnCbnSelchangeOpt5Mybtn2comb() { Act(20372); }

void COption5TabDlg::OnBnClickedOpt5Btnsvc() {
  CServiceDlg dialog(this);
  dialog.projector = projector;
  dialog.ModelCode = Model().ModelCode;
  dialog.DoModal();
}

void COption5TabDlg::OnCbnSelchangeOpt5Atseacomb() { Act(20364); }
void COption5TabDlg::OnCbnSelchangeOpt5Atkscomb() { Act(20365); }
void COption5TabDlg::OnCbnSelchangeOpt5Atoncomb() { Act(20366); }
void COption5TabDlg::OnBnClickedOpt5Btnatoffneg() { Act(20367); }
void COption5TabDlg::OnBnClickedOpt5Btnatoffpos() { Act(20368); }
void COption5TabDlg::OnCbnSelchangeOpt5Mysrccomb() { Act(20374); }
void COption5TabDlg::OnCbnSelchangeOth4CcdisplayComb() { Act(20292); }
void COption5TabDlg::OnCbnSelchangeOth4CcmodeComb() { Act(20293); }
void COption5TabDlg::OnCbnSelchangeOth4CcchannelComb() { Act(20294); }
void COption5TabDlg::OnHScroll(CSliderCtrl& slider) { Release(slider); }
