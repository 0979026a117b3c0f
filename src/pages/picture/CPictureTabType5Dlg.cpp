#include "pages/picture/CPictureTabType5Dlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"
#include "toolkit/CComboBox.h"

namespace {

constexpr int kActiveIrisList = 20293;
constexpr short kNoIrisMode = static_cast<short>(0xFFFF);

std::vector<ListEntry> ActiveIrisEntries() {
  return std::get<ListRow>(FindRow(kPictureType5Rows, kActiveIrisList)).entries.Of({});
}

}  // namespace

CPictureTabType5Dlg::CPictureTabType5Dlg(CWnd* parent)
    : PicturePage(TemplateId::PictureType5, kPictureType5Rows, false, parent) {}

bool CPictureTabType5Dlg::IsCustomGamma(const CComboBox& list) const {
  const auto gamma = list.SelectedValue();
  return gamma && *gamma <= kLastCustomGamma;
}

bool CPictureTabType5Dlg::IsCustomColorTemp(const CComboBox& list) const {
  const auto colorTemp = list.SelectedValue();
  return colorTemp && *colorTemp >= kFirstCustomColorTemp;
}

short CPictureTabType5Dlg::ActIrisIdxToValue(short index) {
  const std::vector<ListEntry> entries = ActiveIrisEntries();
  const bool inside = index >= 0 && index < std::ssize(entries);
  return inside ? static_cast<short>(entries[static_cast<std::size_t>(index)].value) : kNoIrisMode;
}

short CPictureTabType5Dlg::ActIrisValueToIdx(short value) {
  return static_cast<short>(PositionOf(ActiveIrisEntries(), value));
}

void CPictureTabType5Dlg::OnBnClickedPicBgpBtn() { Act(20135); }
void CPictureTabType5Dlg::OnBnClickedPicBgnBtn() { Act(20134); }
void CPictureTabType5Dlg::OnBnClickedPicCnpBtn() { Act(20139); }
void CPictureTabType5Dlg::OnBnClickedPicCnnBtn() { Act(20137); }
void CPictureTabType5Dlg::OnBnClickedPicClrpBtn() { Act(20149); }
void CPictureTabType5Dlg::OnBnClickedPicClrnBtn() { Act(20147); }
void CPictureTabType5Dlg::OnBnClickedPicTintpBtn() { Act(21063); }
void CPictureTabType5Dlg::OnBnClickedPicTintnBtn() { Act(21061); }
void CPictureTabType5Dlg::OnBnClickedPicShppBtn() { Act(20150); }
void CPictureTabType5Dlg::OnBnClickedPicShpnBtn() { Act(20148); }
void CPictureTabType5Dlg::OnBnClickedPicMyldBtn() { Act(21065); }
void CPictureTabType5Dlg::OnCbnSelchangePic5ActilisCombo() { Act(20293); }
void CPictureTabType5Dlg::OnBnClickedPicRstBtn() { Act(21070); }
void CPictureTabType5Dlg::OnHScroll(CSliderCtrl& slider) { Release(slider); }
