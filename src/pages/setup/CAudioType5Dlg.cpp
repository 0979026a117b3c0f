#include "pages/setup/CAudioType5Dlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

namespace {

constexpr int kVolume = 20347;

}  // namespace

CAudioType5Dlg::CAudioType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::AudioType5, kAudioType5Rows, parent) {}

bool CAudioType5Dlg::OnInitDialog() {
  PrepareRows();
  // For models without this page, the captions stay unlocalized.
  if (Row(kVolume).memory.present) LocalizeControlTexts(kCaptionCategory, *this);
  return true;
}

void CAudioType5Dlg::OnHScroll(CSliderCtrl& slider) { Release(slider); }
void CAudioType5Dlg::OnBnClickedAud5Btnvolneg() { Act(20345); }
void CAudioType5Dlg::OnBnClickedAud5Btnvolpos() { Act(20346); }
void CAudioType5Dlg::OnBnClickedAud5Btntreneg() { Act(20348); }
void CAudioType5Dlg::OnBnClickedAud5Btntrepos() { Act(20349); }
void CAudioType5Dlg::OnBnClickedAud5Btnbasneg() { Act(20351); }
void CAudioType5Dlg::OnBnClickedAud5Btnbaspos() { Act(20352); }
void CAudioType5Dlg::OnCbnSelchangeAud5Srswcomb() { Act(20381); }
void CAudioType5Dlg::OnCbnSelchangeAud5Spekcomb() { Act(20354); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb1comb() { Act(20356); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp1comb() { Act(20365); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb2comb() { Act(20358); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp2comb() { Act(20366); }
void CAudioType5Dlg::OnCbnSelchangeAud5Am1dcomb() { Act(20359); }
void CAudioType5Dlg::OnCbnSelchangeAud5Ahdmicomb() { Act(20367); }
void CAudioType5Dlg::OnCbnSelchangeAud5Avidcomb() { Act(20360); }
void CAudioType5Dlg::OnCbnSelchangeAud5Asvidcomb() { Act(20361); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acompcomb() { Act(20362); }
void CAudioType5Dlg::OnCbnSelchangeAud5Amiucomb() { Act(20363); }
void CAudioType5Dlg::OnCbnSelchangeAud5Aoutstbcomb() { Act(20368); }
void CAudioType5Dlg::OnCbnSelchangeAud5Hdmiaudiocomb() { Act(20364); }
