#include "pages/picture/CPictureTabType5Dlg.h"

#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"
#include "toolkit/CComboBox.h"

namespace {

namespace Id = ControlId::Picture;

constexpr short kNoIrisMode = static_cast<short>(0xFFFF);

std::vector<ListEntry> ActiveIrisEntries() {
  return std::get<ListRow>(FindRow(kPictureType5Rows, Id::ActiveIris)).entries.Of({});
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

void CPictureTabType5Dlg::OnBnClickedPicBgpBtn() { Act(Id::BrightnessPlus); }
void CPictureTabType5Dlg::OnBnClickedPicBgnBtn() { Act(Id::BrightnessMinus); }
void CPictureTabType5Dlg::OnBnClickedPicCnpBtn() { Act(Id::ContrastPlus); }
void CPictureTabType5Dlg::OnBnClickedPicCnnBtn() { Act(Id::ContrastMinus); }
void CPictureTabType5Dlg::OnBnClickedPicClrpBtn() { Act(Id::ColorPlus); }
void CPictureTabType5Dlg::OnBnClickedPicClrnBtn() { Act(Id::ColorMinus); }
void CPictureTabType5Dlg::OnBnClickedPicTintpBtn() { Act(Id::TintPlus); }
void CPictureTabType5Dlg::OnBnClickedPicTintnBtn() { Act(Id::TintMinus); }
void CPictureTabType5Dlg::OnBnClickedPicShppBtn() { Act(Id::SharpnessPlus); }
void CPictureTabType5Dlg::OnBnClickedPicShpnBtn() { Act(Id::SharpnessMinus); }
void CPictureTabType5Dlg::OnBnClickedPicMyldBtn() { Act(Id::MyMemoryExecute); }
void CPictureTabType5Dlg::OnCbnSelchangePic5ActilisCombo() { Act(Id::ActiveIris); }
void CPictureTabType5Dlg::OnBnClickedPicRstBtn() { Act(Id::ResetExecute); }
void CPictureTabType5Dlg::OnHScroll(CSliderCtrl& slider) { Release(slider); }
