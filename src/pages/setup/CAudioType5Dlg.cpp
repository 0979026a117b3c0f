#include "pages/setup/CAudioType5Dlg.h"

#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"

namespace {

namespace Id = ControlId::AudioType5;

}  // namespace

CAudioType5Dlg::CAudioType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::AudioType5, kAudioType5Rows, parent) {}

bool CAudioType5Dlg::OnInitDialog() {
  PrepareRows();
  // For models without this page, the captions stay unlocalized.
  if (Row(Id::Volume).memory.present) LocalizeControlTexts(kCaptionCategory, *this);
  return true;
}

void CAudioType5Dlg::OnHScroll(CSliderCtrl& slider) { Release(slider); }
void CAudioType5Dlg::OnBnClickedAud5Btnvolneg() { Act(Id::VolumeMinus); }
void CAudioType5Dlg::OnBnClickedAud5Btnvolpos() { Act(Id::VolumePlus); }
void CAudioType5Dlg::OnBnClickedAud5Btntreneg() { Act(Id::TrebleMinus); }
void CAudioType5Dlg::OnBnClickedAud5Btntrepos() { Act(Id::TreblePlus); }
void CAudioType5Dlg::OnBnClickedAud5Btnbasneg() { Act(Id::BassMinus); }
void CAudioType5Dlg::OnBnClickedAud5Btnbaspos() { Act(Id::BassPlus); }
void CAudioType5Dlg::OnCbnSelchangeAud5Srswcomb() { Act(Id::SrsWow); }
void CAudioType5Dlg::OnCbnSelchangeAud5Spekcomb() { Act(Id::Speaker); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb1comb() { Act(Id::Rgb1); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp1comb() { Act(Id::Computer1); }
void CAudioType5Dlg::OnCbnSelchangeAud5Argb2comb() { Act(Id::Rgb2); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acomp2comb() { Act(Id::Computer2); }
void CAudioType5Dlg::OnCbnSelchangeAud5Am1dcomb() { Act(Id::M1D); }
void CAudioType5Dlg::OnCbnSelchangeAud5Ahdmicomb() { Act(Id::Hdmi); }
void CAudioType5Dlg::OnCbnSelchangeAud5Avidcomb() { Act(Id::Video); }
void CAudioType5Dlg::OnCbnSelchangeAud5Asvidcomb() { Act(Id::SVideo); }
void CAudioType5Dlg::OnCbnSelchangeAud5Acompcomb() { Act(Id::Component); }
void CAudioType5Dlg::OnCbnSelchangeAud5Amiucomb() { Act(Id::Miu); }
void CAudioType5Dlg::OnCbnSelchangeAud5Aoutstbcomb() { Act(Id::OutStandby); }
void CAudioType5Dlg::OnCbnSelchangeAud5Hdmiaudiocomb() { Act(Id::HdmiAudio); }
