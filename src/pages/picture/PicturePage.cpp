#include "pages/picture/PicturePage.h"

#include "pages/picture/CColorDlg.h"
#include "pages/picture/CGammaDlg.h"
#include "settings/ControlId.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

namespace {

namespace Id = ControlId::Picture;

}  // namespace

PicturePage::PicturePage(int templateNumber, const PageTable& table, bool hideResets, CWnd* parent)
    : CTabPage(templateNumber, table, parent), hideResets_(hideResets) {}

std::vector<Notification> PicturePage::OwnNotifications() const {
  using Self = PicturePage;
  return {
      SelChange(Id::Gamma, &Self::OnCbnSelchangePicGammaComb),
      SelChange(Id::ColorTemp, &Self::OnCbnSelchangePicCctComb),
      Clicked(Id::CustomGamma, &Self::OnBnClickedPicGammaBtn),
      Clicked(Id::CustomColorTemp, &Self::OnBnClickedPicColorBtn),
  };
}

void PicturePage::InitDisp() {
  CTabPage::InitDisp();
  EnableCustomButtons();
}

void PicturePage::EnableCustomButtons() {
  Enable(Id::CustomGamma, IsCustomGamma(Item<CComboBox>(Id::Gamma)), ListText::OnlyForCustomGamma);
  Enable(Id::CustomColorTemp, IsCustomColorTemp(Item<CComboBox>(Id::ColorTemp)),
         ListText::OnlyForCustomColorTemp);
}

void PicturePage::OnCbnSelchangePicGammaComb() {
  Act(Id::Gamma);
  EnableCustomButtons();
}

void PicturePage::OnCbnSelchangePicCctComb() {
  Act(Id::ColorTemp);
  EnableCustomButtons();
}

void PicturePage::OnBnClickedPicGammaBtn() {
  CGammaDlg dialog(hideResets_, nullptr);
  dialog.BelongTo(window());
  dialog.projector = projector;
  dialog.DoModal();
}

void PicturePage::OnBnClickedPicColorBtn() {
  CColorDlg dialog(hideResets_, nullptr);
  dialog.BelongTo(window());
  dialog.projector = projector;
  dialog.DoModal();
}

}  // namespace AdvancedControl
