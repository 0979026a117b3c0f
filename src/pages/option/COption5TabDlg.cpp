#include "pages/option/COption5TabDlg.h"

#include <algorithm>
#include <iterator>

#include "pages/option/CServiceDlg.h"
#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/option/MyButtons.h"

namespace {

namespace Id = ControlId::OptionType5;

}  // namespace

COption5TabDlg::COption5TabDlg(CWnd* parent)
    : CTabPage(TemplateId::OptionType5, kOptionType5Rows, parent) {}

std::vector<Notification> COption5TabDlg::OwnNotifications() const {
  return {Clicked(Id::Service, &COption5TabDlg::OnBnClickedOpt5Btnsvc)};
}

bool COption5TabDlg::OnInitDialog() {
  CTabPage::OnInitDialog();
  myButtonCodes_.assign(std::begin(MyButtonTable), std::prev(std::end(MyButtonTable)));
  if (Row(Id::MyButton1).memory.present && Model().MyButtonList.Size() > 0) {
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

void COption5TabDlg::OnCbnSelchangeOpt5Mybtn1comb() { Act(Id::MyButton1); }
void COption5TabDlg::OnCbnSelchangeOpt5Mybtn2comb() { Act(Id::MyButton2); }

void COption5TabDlg::OnBnClickedOpt5Btnsvc() {
  CServiceDlg dialog(this);
  dialog.projector = projector;
  dialog.ModelCode = Model().ModelCode;
  dialog.DoModal();
}

void COption5TabDlg::OnCbnSelchangeOpt5Atseacomb() { Act(Id::AutoSearch); }
void COption5TabDlg::OnCbnSelchangeOpt5Atkscomb() { Act(Id::AutoKeystone); }
void COption5TabDlg::OnCbnSelchangeOpt5Atoncomb() { Act(Id::AutoOn); }
void COption5TabDlg::OnBnClickedOpt5Btnatoffneg() { Act(Id::AutoOffMinus); }
void COption5TabDlg::OnBnClickedOpt5Btnatoffpos() { Act(Id::AutoOffPlus); }
void COption5TabDlg::OnCbnSelchangeOpt5Mysrccomb() { Act(Id::MySource); }
void COption5TabDlg::OnCbnSelchangeOth4CcdisplayComb() { Act(Id::CcDisplay); }
void COption5TabDlg::OnCbnSelchangeOth4CcmodeComb() { Act(Id::CcMode); }
void COption5TabDlg::OnCbnSelchangeOth4CcchannelComb() { Act(Id::CcChannel); }
void COption5TabDlg::OnHScroll(CSliderCtrl& slider) { Release(slider); }
