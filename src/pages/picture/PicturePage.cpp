#include "pages/picture/PicturePage.h"

#include "pages/picture/CColorDlg.h"
#include "pages/picture/CGammaDlg.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

namespace {

constexpr int kGammaList = 20142;
constexpr int kColorTempList = 20144;
constexpr int kCustomGamma = 20133;
constexpr int kCustomColorTemp = 20143;

}  // namespace

PicturePage::PicturePage(int templateNumber, const PageTable& table, bool hideResets, CWnd* parent)
    : CTabPage(templateNumber, table, parent), hideResets_(hideResets) {}

std::vector<Notification> PicturePage::OwnNotifications() const {
  using Self = PicturePage;
  return {
      SelChange(kGammaList, &Self::OnCbnSelchangePicGammaComb),
      SelChange(kColorTempList, &Self::OnCbnSelchangePicCctComb),
      Clicked(kCustomGamma, &Self::OnBnClickedPicGammaBtn),
      Clicked(kCustomColorTemp, &Self::OnBnClickedPicColorBtn),
  };
}

void PicturePage::InitDisp() {
  CTabPage::InitDisp();
  EnableCustomButtons();
}

void PicturePage::EnableCustomButtons() {
  GetDlgItem(kCustomGamma)->setEnabled(IsCustomGamma(Item<CComboBox>(kGammaList)));
  GetDlgItem(kCustomColorTemp)->setEnabled(IsCustomColorTemp(Item<CComboBox>(kColorTempList)));
}

void PicturePage::OnCbnSelchangePicGammaComb() {
  Act(kGammaList);
  EnableCustomButtons();
}

void PicturePage::OnCbnSelchangePicCctComb() {
  Act(kColorTempList);
  EnableCustomButtons();
}

void PicturePage::OnBnClickedPicGammaBtn() {
  CGammaDlg dialog(hideResets_, nullptr);
  dialog.projector = projector;
  dialog.DoModal();
}

void PicturePage::OnBnClickedPicColorBtn() {
  CColorDlg dialog(hideResets_, nullptr);
  dialog.projector = projector;
  dialog.DoModal();
}

}  // namespace AdvancedControl
