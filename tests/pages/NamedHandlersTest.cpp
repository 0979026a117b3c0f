// The exported handlers of the newest page set, which a host may call.

#include <set>

#include <QWidget>
#include <gtest/gtest.h>

#include "pages/input/CInputType5Dlg.h"
#include "pages/option/COption5TabDlg.h"
#include "pages/option/CServiceDlg.h"
#include "pages/picture/CPictureTabType5Dlg.h"
#include "pages/setup/CAudioType5Dlg.h"
#include "pages/setup/CSetupType5TabDlg.h"
#include "settings/ControlId.h"
#include "tests/support/DialogDriver.h"

namespace {

template <class Page>
using Handlers = std::vector<std::pair<int, void (Page::*)()>>;

/// Each handler must send what its control sends when the user operates it.
template <class Page>
void ExpectOwnControls(int tab, const Handlers<Page>& handlers) {
  std::set<int> tried;
  for (const CModelInfo2& model : EveryModel()) {
    if (model.DialogType != 5 || tried.size() == handlers.size()) continue;
    SCOPED_TRACE(NameOf(model));
    OpenDialog open(model, tab, [](RecordingChannel& projector) {
      projector.Answer("Get", 128);
      projector.Answer("Get 0x3304", 0);
    });
    MessageBoxes boxes(true);
    std::unique_ptr<RowDialog> popUp;
    if constexpr (std::is_same_v<Page, CServiceDlg>) {
      popUp = MakePopUp(PopUp::Service, open.Dialog());
      Open(*popUp);
    }
    RowDialog& page = popUp ? *popUp : open.Page();
    if (dynamic_cast<Page*>(&page) == nullptr) continue;  // Not every model has the page.
    const DialogDriver driver(page);
    open.Projector().Take();
    for (const auto& [control, handler] : handlers) {
      auto& widget = driver.Item<QWidget>(control);
      if (!widget.isVisible() || tried.contains(control)) continue;
      SCOPED_TRACE(NameOf(widget));
      const auto* const list = qobject_cast<CComboBox*>(&widget);
      if (list != nullptr && list->count() < 2) continue;
      list != nullptr ? driver.Choose(control, 1) : driver.Click(control);
      const auto sent = open.Projector().TakeChanges();
      (static_cast<Page&>(page).*handler)();
      EXPECT_EQ(open.Projector().TakeChanges(), sent);
      if (sent.size() == 1) tried.insert(control);
    }
  }
  for (const auto& [control, handler] : handlers) EXPECT_TRUE(tried.contains(control)) << control;
}

TEST(NamedHandlers, Picture5) {
  namespace Id = ControlId::Picture;
  using Page = CPictureTabType5Dlg;
  ExpectOwnControls<Page>(1, {{Id::BrightnessPlus, &Page::OnBnClickedPicBgpBtn},
                              {Id::BrightnessMinus, &Page::OnBnClickedPicBgnBtn},
                              {Id::ContrastPlus, &Page::OnBnClickedPicCnpBtn},
                              {Id::ContrastMinus, &Page::OnBnClickedPicCnnBtn},
                              {Id::ColorPlus, &Page::OnBnClickedPicClrpBtn},
                              {Id::ColorMinus, &Page::OnBnClickedPicClrnBtn},
                              {Id::TintPlus, &Page::OnBnClickedPicTintpBtn},
                              {Id::TintMinus, &Page::OnBnClickedPicTintnBtn},
                              {Id::SharpnessPlus, &Page::OnBnClickedPicShppBtn},
                              {Id::SharpnessMinus, &Page::OnBnClickedPicShpnBtn},
                              {Id::MyMemoryExecute, &Page::OnBnClickedPicMyldBtn},
                              {Id::ActiveIris, &Page::OnCbnSelchangePic5ActilisCombo},
                              {Id::ResetExecute, &Page::OnBnClickedPicRstBtn}});
}

TEST(NamedHandlers, Input5) {
  namespace Id = ControlId::InputType5;
  using Page = CInputType5Dlg;
  ExpectOwnControls<Page>(3,
                          {{Id::Progressive, &Page::OnCbnSelchangeInput5ProgComb},
                           {Id::VideoNr, &Page::OnCbnSelchangeInput5VidnrComb},
                           {Id::ThreeDYcs, &Page::OnCbnSelchangeInput53dycsComb},
                           {Id::ColorSpace, &Page::OnCbnSelchangeInput5CospsComb},
                           {Id::Component, &Page::OnCbnSelchangeInput5CompoComb},
                           {Id::CVideoFormat, &Page::OnCbnSelchangeInput5CvidfmtComb},
                           {Id::SVideoFormat, &Page::OnCbnSelchangeInput5SvidfmtComb},
                           {Id::Hdmi, &Page::OnCbnSelchangeInput5HdmiComb},
                           {Id::M1D, &Page::OnCbnSelchangeInput5M1dComb},
                           {Id::FrameLock, &Page::OnCbnSelchangeInput5FrlckCombo},
                           {Id::FrameLockRgb1, &Page::OnCbnSelchangeInput5Framelockrgb1Comb},
                           {Id::FrameLockComputer1, &Page::OnCbnSelchangeInput5Framelockcomp1Comb},
                           {Id::FrameLockRgb2, &Page::OnCbnSelchangeInput5Framelockrgb2Comb},
                           {Id::FrameLockComputer2, &Page::OnCbnSelchangeInput5Framelockcomp2Comb},
                           {Id::FrameLockHdmi, &Page::OnCbnSelchangeInput5FramelockhdmiComb},
                           {Id::RgbIn1, &Page::OnCbnSelchangeInput5Rgbin1Comb},
                           {Id::ComputerIn1, &Page::OnCbnSelchangeInput5Computerin1Comb},
                           {Id::RgbIn2, &Page::OnCbnSelchangeInput5Rgbin2Comb},
                           {Id::ComputerIn2, &Page::OnCbnSelchangeInput5Computerin2Comb}});
}

TEST(NamedHandlers, Setup5) {
  namespace Id = ControlId::SetupType5;
  using Page = CSetupType5TabDlg;
  ExpectOwnControls<Page>(4,
                          {{Id::AutoKeystone, &Page::OnBnClickedStu5Btnatks},
                           {Id::KeystoneVMinus, &Page::OnBnClickedStu5Btksvneg},
                           {Id::KeystoneVPlus, &Page::OnBnClickedStu5Btksvpos},
                           {Id::KeystoneHMinus, &Page::OnBnClickedStu5Btkshneg},
                           {Id::KeystoneHPlus, &Page::OnBnClickedStu5Btkshpos},
                           {Id::VolumeMinus, &Page::OnBnClickedStu5Btvolneg},
                           {Id::VolumePlus, &Page::OnBnClickedStu5Btvolpos},
                           {Id::ResetExecute, &Page::OnBnClickedStu5Btreset},
                           {Id::Whisper, &Page::OnCbnSelchangeStu5Wspcomb},
                           {Id::Mirror, &Page::OnCbnSelchangeStu5Mircomb},
                           {Id::Speaker, &Page::OnCbnSelchangeStu5Speakercomb},
                           {Id::DZoomMinus, &Page::OnBnClickedDzoomDecBtn},
                           {Id::DShiftVPlus, &Page::OnBnClickedDshiftUpBtn},
                           {Id::DShiftVMinus, &Page::OnBnClickedDshiftDownBtn},
                           {Id::DShiftHMinus, &Page::OnBnClickedDshiftLeftBtn},
                           {Id::DShiftHPlus, &Page::OnBnClickedDshiftRightBtn},
                           {Id::AudioRgb1, &Page::OnCbnSelchangeStu5Argb1comb},
                           {Id::AudioComputer1, &Page::OnCbnSelchangeStu5Acomp1comb},
                           {Id::AudioRgb2, &Page::OnCbnSelchangeStu5Argb2comb},
                           {Id::AudioComputer2, &Page::OnCbnSelchangeStu5Acomp2comb},
                           {Id::AudioHdmi, &Page::OnCbnSelchangeStu5Ahdmicomb},
                           {Id::AudioVideo, &Page::OnCbnSelchangeStu5Avidcomb},
                           {Id::AudioSVideo, &Page::OnCbnSelchangeStu5Asvidcomb},
                           {Id::AudioComponent, &Page::OnCbnSelchangeStu5Acompcomb},
                           {Id::AudioMiu, &Page::OnCbnSelchangeStu5Amiucomb},
                           {Id::HdmiAudio, &Page::OnCbnSelchangeStu5HdmiaudioComb},
                           {Id::MonitorOutRgb1, &Page::OnCbnSelchangeCombMonitoroutRgb1},
                           {Id::MonitorOutComputer1, &Page::OnCbnSelchangeCombMonitoroutComputer1},
                           {Id::MonitorOutRgb2, &Page::OnCbnSelchangeCombMonitoroutRgb2},
                           {Id::MonitorOutComputer2, &Page::OnCbnSelchangeCombMonitoroutComputer2},
                           {Id::MonitorOutHdmi, &Page::OnCbnSelchangeCombMonitoroutHdmi},
                           {Id::MonitorOutComponent, &Page::OnCbnSelchangeCombMonitoroutComponent},
                           {Id::MonitorOutSVideo, &Page::OnCbnSelchangeCombMonitoroutSvideo},
                           {Id::MonitorOutVideo, &Page::OnCbnSelchangeCombMonitoroutVideo},
                           {Id::MonitorOutMiu, &Page::OnCbnSelchangeCombMonitoroutMiu},
                           {Id::MonitorOutStandby, &Page::OnCbnSelchangeCombMonitoroutStandby}});
}

TEST(NamedHandlers, Audio5) {
  namespace Id = ControlId::AudioType5;
  using Page = CAudioType5Dlg;
  ExpectOwnControls<Page>(5, {{Id::VolumeMinus, &Page::OnBnClickedAud5Btnvolneg},
                              {Id::VolumePlus, &Page::OnBnClickedAud5Btnvolpos},
                              {Id::TrebleMinus, &Page::OnBnClickedAud5Btntreneg},
                              {Id::TreblePlus, &Page::OnBnClickedAud5Btntrepos},
                              {Id::BassMinus, &Page::OnBnClickedAud5Btnbasneg},
                              {Id::BassPlus, &Page::OnBnClickedAud5Btnbaspos},
                              {Id::SrsWow, &Page::OnCbnSelchangeAud5Srswcomb},
                              {Id::Speaker, &Page::OnCbnSelchangeAud5Spekcomb},
                              {Id::Rgb1, &Page::OnCbnSelchangeAud5Argb1comb},
                              {Id::Computer1, &Page::OnCbnSelchangeAud5Acomp1comb},
                              {Id::Rgb2, &Page::OnCbnSelchangeAud5Argb2comb},
                              {Id::Computer2, &Page::OnCbnSelchangeAud5Acomp2comb},
                              {Id::M1D, &Page::OnCbnSelchangeAud5Am1dcomb},
                              {Id::Hdmi, &Page::OnCbnSelchangeAud5Ahdmicomb},
                              {Id::Video, &Page::OnCbnSelchangeAud5Avidcomb},
                              {Id::SVideo, &Page::OnCbnSelchangeAud5Asvidcomb},
                              {Id::Component, &Page::OnCbnSelchangeAud5Acompcomb},
                              {Id::Miu, &Page::OnCbnSelchangeAud5Amiucomb},
                              {Id::OutStandby, &Page::OnCbnSelchangeAud5Aoutstbcomb},
                              {Id::HdmiAudio, &Page::OnCbnSelchangeAud5Hdmiaudiocomb}});
}

TEST(NamedHandlers, OptionType5) {
  namespace Id = ControlId::OptionType5;
  using Page = COption5TabDlg;
  ExpectOwnControls<Page>(6, {{Id::MyButton1, &Page::OnCbnSelchangeOpt5Mybtn1comb},
                              {Id::MyButton2, &Page::OnCbnSelchangeOpt5Mybtn2comb},
                              {Id::AutoSearch, &Page::OnCbnSelchangeOpt5Atseacomb},
                              {Id::AutoKeystone, &Page::OnCbnSelchangeOpt5Atkscomb},
                              {Id::AutoOn, &Page::OnCbnSelchangeOpt5Atoncomb},
                              {Id::AutoOffMinus, &Page::OnBnClickedOpt5Btnatoffneg},
                              {Id::AutoOffPlus, &Page::OnBnClickedOpt5Btnatoffpos},
                              {Id::CcDisplay, &Page::OnCbnSelchangeOth4CcdisplayComb},
                              {Id::CcMode, &Page::OnCbnSelchangeOth4CcmodeComb},
                              {Id::CcChannel, &Page::OnCbnSelchangeOth4CcchannelComb}});
}

TEST(NamedHandlers, Service) {
  namespace Id = ControlId::Service;
  using Page = CServiceDlg;
  ExpectOwnControls<Page>(0, {{Id::AutoAdjust, &Page::OnCbnSelchangeSvcAtadjenbcomb},
                              {Id::IrFront, &Page::OnBnClickedSvcIrfrontchk},
                              {Id::IrRear, &Page::OnBnClickedSvcIrrearchk},
                              {Id::IrTop, &Page::OnBnClickedSvcIrtopchk},
                              {Id::IrFrequencyNormal, &Page::OnCbnSelchangeSvcIrfreqncomb},
                              {Id::IrFrequencyHigh, &Page::OnCbnSelchangeSvcIrfreqhcomb},
                              {Id::FocusLock, &Page::OnCbnSelchangeSvcFocuslockcomb}});
}

}  // namespace
