#include "pages/picture/CPictureTabType5Dlg.h"

#include "pages/picture/CColorDlg.h"
#include "pages/picture/CGammaDlg.h"
#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"

namespace {

constexpr int kGammaList = 20142;
constexpr int kColorTempList = 20144;
constexpr int kActiveIrisList = 20293;
constexpr int kCustomGamma = 20133;
constexpr int kCustomColorTemp = 20143;

// Up to here a gamma, and from here a colour temperature, is one that the user can shape.
constexpr int kLastCustomGamma = 21;
constexpr int kFirstCustomColorTemp = 17;

std::vector<ListEntry> ActiveIrisEntries() {
  return std::get<ListRow>(FindRow(kPictureType5Rows, kActiveIrisList)).entries.Of({});
}

}  // namespace

CPictureTabType5Dlg::CPictureTabType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::PictureType5, kPictureType5Rows, parent) {}

std::vector<Notification> CPictureTabType5Dlg::OwnNotifications() const {
  using Self = CPictureTabType5Dlg;
  return {
      SelChange(kGammaList, &Self::OnCbnSelchangePicGammaComb),
      SelChange(kColorTempList, &Self::OnCbnSelchangePicCctComb),
      Clicked(kCustomGamma, &Self::OnBnClickedPicGammaBtn),
      Clicked(kCustomColorTemp, &Self::OnBnClickedPicColorBtn),
  };
}

void CPictureTabType5Dlg::InitDisp() {
  CTabPage::InitDisp();
  EnableCustomButtons();
}

short CPictureTabType5Dlg::ActIrisIdxToValue(short index) {
  return static_cast<short>(ActiveIrisEntries()[static_cast<std::size_t>(index)].value);
}

short CPictureTabType5Dlg::ActIrisValueToIdx(short value) {
  return static_cast<short>(PositionOf(ActiveIrisEntries(), value));
}

void CPictureTabType5Dlg::EnableCustomButtons() {
  const auto gamma = List(kGammaList).SelectedValue();
  GetDlgItem(kCustomGamma)->setEnabled(gamma && *gamma <= kLastCustomGamma);
  const auto colorTemp = List(kColorTempList).SelectedValue();
  GetDlgItem(kCustomColorTemp)->setEnabled(colorTemp && *colorTemp >= kFirstCustomColorTemp);
}

void CPictureTabType5Dlg::OnCbnSelchangePicGammaComb() {
  Act(kGammaList);
  EnableCustomButtons();
}

void CPictureTabType5Dlg::OnCbnSelchangePicCctComb() {
  Act(kColorTempList);
  EnableCustomButtons();
}

void CPictureTabType5Dlg::OnBnClickedPicGammaBtn() {
  CGammaDlg dialog(false, nullptr);
  dialog.projector = projector;
  dialog.DoModal();
}

void CPictureTabType5Dlg::OnBnClickedPicColorBtn() {
  CColorDlg dialog(false, nullptr);
  dialog.projector = projector;
  dialog.DoModal();
}
