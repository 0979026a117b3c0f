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
#include "tests/support/DialogDriver.h"

namespace {

template <class Page>
using Handlers = std::vector<void (Page::*)()>;

/// Each handler must send what its control sends when the user operates it. The handlers are in the
/// order of the page's controls; null for a control whose handler opens a window or sends nothing.
template <class Page>
void ExpectOwnControls(int tab, const Handlers<Page>& handlers) {
  std::set<std::size_t> tried;
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
    const std::vector<int> controls = OperatedControls(page);
    ASSERT_EQ(controls.size(), handlers.size());
    for (std::size_t i = 0; i < handlers.size(); ++i) {
      const int control = controls[i];
      const auto handler = handlers[i];
      auto& widget = driver.Item<QWidget>(control);
      if (handler == nullptr) tried.insert(i);
      if (!widget.isVisible() || tried.contains(i)) continue;
      SCOPED_TRACE(NameOf(widget));
      const auto* const list = qobject_cast<CComboBox*>(&widget);
      if (list != nullptr && list->count() < 2) continue;
      list != nullptr ? driver.Choose(control, 1) : driver.Click(control);
      const auto sent = open.Projector().TakeChanges();
      (static_cast<Page&>(page).*handler)();
      EXPECT_EQ(open.Projector().TakeChanges(), sent);
      if (sent.size() == 1) tried.insert(i);
      if (list == nullptr) continue;
      driver.Item<CComboBox>(control).Select(-1);
      (static_cast<Page&>(page).*handler)();
      EXPECT_TRUE(open.Projector().TakeChanges().empty()) << "nothing is selected";
    }
  }
  EXPECT_EQ(tried.size(), handlers.size()) << "not every control was on the page of some model";
}

TEST(NamedHandlers, Picture5) {
  using Page = CPictureTabType5Dlg;
  ExpectOwnControls<Page>(
      1, {&Page::OnBnClickedPicBgnBtn, &Page::OnBnClickedPicBgpBtn, &Page::OnBnClickedPicCnnBtn,
          &Page::OnBnClickedPicCnpBtn, nullptr, nullptr, nullptr, nullptr,
          &Page::OnBnClickedPicClrnBtn, &Page::OnBnClickedPicClrpBtn, &Page::OnBnClickedPicTintnBtn,
          &Page::OnBnClickedPicTintpBtn, &Page::OnBnClickedPicShpnBtn, &Page::OnBnClickedPicShppBtn,
          &Page::OnCbnSelchangePic5ActilisCombo, nullptr, &Page::OnBnClickedPicMyldBtn, nullptr,
          &Page::OnBnClickedPicRstBtn});
}

TEST(NamedHandlers, Input5) {
  using Page = CInputType5Dlg;
  ExpectOwnControls<Page>(
      3,
      {&Page::OnCbnSelchangeInput5ProgComb, &Page::OnCbnSelchangeInput5VidnrComb,
       &Page::OnCbnSelchangeInput53dycsComb, &Page::OnCbnSelchangeInput5CospsComb,
       &Page::OnCbnSelchangeInput5CompoComb, &Page::OnCbnSelchangeInput5CvidfmtComb,
       &Page::OnCbnSelchangeInput5SvidfmtComb, &Page::OnCbnSelchangeInput5HdmiComb,
       &Page::OnCbnSelchangeInput5M1dComb, &Page::OnCbnSelchangeInput5FrlckCombo,
       &Page::OnCbnSelchangeInput5Framelockrgb1Comb, &Page::OnCbnSelchangeInput5Framelockcomp1Comb,
       &Page::OnCbnSelchangeInput5Framelockrgb2Comb, &Page::OnCbnSelchangeInput5Framelockcomp2Comb,
       &Page::OnCbnSelchangeInput5FramelockhdmiComb, &Page::OnCbnSelchangeInput5Rgbin1Comb,
       &Page::OnCbnSelchangeInput5Computerin1Comb, &Page::OnCbnSelchangeInput5Rgbin2Comb,
       &Page::OnCbnSelchangeInput5Computerin2Comb});
}

TEST(NamedHandlers, Setup5) {
  using Page = CSetupType5TabDlg;
  ExpectOwnControls<Page>(4, {&Page::OnBnClickedStu5Btnatks,
                              &Page::OnBnClickedStu5Btksvneg,
                              &Page::OnBnClickedStu5Btksvpos,
                              &Page::OnBnClickedStu5Btkshneg,
                              &Page::OnBnClickedStu5Btkshpos,
                              &Page::OnCbnSelchangeStu5Wspcomb,
                              &Page::OnCbnSelchangeStu5Mircomb,
                              &Page::OnBnClickedStu5Btvolneg,
                              &Page::OnBnClickedStu5Btvolpos,
                              &Page::OnCbnSelchangeStu5Speakercomb,
                              &Page::OnBnClickedDzoomDecBtn,
                              nullptr,
                              &Page::OnBnClickedDshiftUpBtn,
                              &Page::OnBnClickedDshiftDownBtn,
                              &Page::OnBnClickedDshiftLeftBtn,
                              &Page::OnBnClickedDshiftRightBtn,
                              nullptr,
                              &Page::OnBnClickedStu5Btreset,
                              &Page::OnCbnSelchangeStu5Argb1comb,
                              &Page::OnCbnSelchangeStu5Acomp1comb,
                              &Page::OnCbnSelchangeStu5Argb2comb,
                              &Page::OnCbnSelchangeStu5Acomp2comb,
                              &Page::OnCbnSelchangeStu5Ahdmicomb,
                              &Page::OnCbnSelchangeStu5Avidcomb,
                              &Page::OnCbnSelchangeStu5Asvidcomb,
                              &Page::OnCbnSelchangeStu5Acompcomb,
                              &Page::OnCbnSelchangeStu5Amiucomb,
                              &Page::OnCbnSelchangeStu5HdmiaudioComb,
                              nullptr,
                              &Page::OnCbnSelchangeCombMonitoroutRgb1,
                              &Page::OnCbnSelchangeCombMonitoroutComputer1,
                              &Page::OnCbnSelchangeCombMonitoroutRgb2,
                              &Page::OnCbnSelchangeCombMonitoroutComputer2,
                              &Page::OnCbnSelchangeCombMonitoroutHdmi,
                              &Page::OnCbnSelchangeCombMonitoroutComponent,
                              &Page::OnCbnSelchangeCombMonitoroutSvideo,
                              &Page::OnCbnSelchangeCombMonitoroutVideo,
                              &Page::OnCbnSelchangeCombMonitoroutMiu,
                              &Page::OnCbnSelchangeCombMonitoroutStandby});
}

TEST(NamedHandlers, Audio5) {
  using Page = CAudioType5Dlg;
  ExpectOwnControls<Page>(
      5, {&Page::OnBnClickedAud5Btnvolneg,      &Page::OnBnClickedAud5Btnvolpos,
          &Page::OnBnClickedAud5Btntreneg,      &Page::OnBnClickedAud5Btntrepos,
          &Page::OnBnClickedAud5Btnbasneg,      &Page::OnBnClickedAud5Btnbaspos,
          &Page::OnCbnSelchangeAud5Srswcomb,    &Page::OnCbnSelchangeAud5Spekcomb,
          &Page::OnCbnSelchangeAud5Argb1comb,   &Page::OnCbnSelchangeAud5Acomp1comb,
          &Page::OnCbnSelchangeAud5Argb2comb,   &Page::OnCbnSelchangeAud5Acomp2comb,
          &Page::OnCbnSelchangeAud5Am1dcomb,    &Page::OnCbnSelchangeAud5Ahdmicomb,
          &Page::OnCbnSelchangeAud5Avidcomb,    &Page::OnCbnSelchangeAud5Asvidcomb,
          &Page::OnCbnSelchangeAud5Acompcomb,   &Page::OnCbnSelchangeAud5Amiucomb,
          &Page::OnCbnSelchangeAud5Aoutstbcomb, &Page::OnCbnSelchangeAud5Hdmiaudiocomb});
}

TEST(NamedHandlers, OptionType5) {
  using Page = COption5TabDlg;
  ExpectOwnControls<Page>(
      6, {&Page::OnCbnSelchangeOpt5Atseacomb, &Page::OnCbnSelchangeOpt5Atkscomb,
          &Page::OnCbnSelchangeOpt5Atoncomb, &Page::OnBnClickedOpt5Btnatoffneg,
          &Page::OnBnClickedOpt5Btnatoffpos, &Page::OnCbnSelchangeOpt5Mybtn1comb,
          &Page::OnCbnSelchangeOpt5Mybtn2comb, nullptr, nullptr,
          &Page::OnCbnSelchangeOth4CcdisplayComb, &Page::OnCbnSelchangeOth4CcmodeComb,
          &Page::OnCbnSelchangeOth4CcchannelComb});
}

TEST(NamedHandlers, Service) {
  using Page = CServiceDlg;
  ExpectOwnControls<Page>(0,
                          {&Page::OnCbnSelchangeSvcAtadjenbcomb, &Page::OnBnClickedSvcIrfrontchk,
                           &Page::OnBnClickedSvcIrrearchk, &Page::OnBnClickedSvcIrtopchk,
                           &Page::OnCbnSelchangeSvcIrfreqncomb, &Page::OnCbnSelchangeSvcIrfreqhcomb,
                           &Page::OnCbnSelchangeSvcFocuslockcomb});
}

}  // namespace
