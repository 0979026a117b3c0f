// The exported handlers of the newest page set, which a host may call.

#include <QWidget>
#include <gtest/gtest.h>

#include "pages/input/CInputType5Dlg.h"
#include "pages/option/COption5TabDlg.h"
#include "pages/option/CServiceDlg.h"
#include "pages/picture/CPictureTabType5Dlg.h"
#include "pages/setup/CAudioType5Dlg.h"
#include "pages/setup/CSetupType5TabDlg.h"
#include "tests/support/DialogDriver.h"
#include "toolkit/CSliderCtrl.h"

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
    OpenDialog open(model, tab, Answers({{"Get", 128}, {"Get 0x3304", 0}, {"Get 0x300A", 95}}));
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
    if constexpr (requires { &Page::OnHScroll; }) {
      for (auto* slider : page.findChildren<CSliderCtrl*>()) {
        if (slider->isVisible()) static_cast<Page&>(page).OnHScroll(*slider);
        EXPECT_NE(open.Projector().TakeChanges().empty(), slider->isVisible());
      }
    }
    const std::vector<int> controls = OperatedControls(page);
    ASSERT_EQ(controls.size(), handlers.size());
    for (std::size_t i = 0; i < handlers.size(); ++i) {
      const int control = controls[i];
      auto& widget = driver.Item<QWidget>(control);
      if (handlers[i] == nullptr) tried.insert(i);
      if (!widget.isVisible() || tried.contains(i)) continue;
      SCOPED_TRACE(NameOf(widget));
      const auto* const list = qobject_cast<CComboBox*>(&widget);
      if (list != nullptr && list->count() < 2) continue;
      list != nullptr ? driver.Choose(control, 1) : driver.Click(control);
      const auto sent = open.Projector().TakeChanges();
      (static_cast<Page&>(page).*handlers[i])();
      EXPECT_EQ(open.Projector().TakeChanges(), sent);
      if (sent.size() == 1) tried.insert(i);
      if (list == nullptr) continue;
      driver.Item<CComboBox>(control).Select(-1);
      (static_cast<Page&>(page).*handlers[i])();
      EXPECT_TRUE(open.Projector().TakeChanges().empty()) << "nothing is selected";
    }
  }
  EXPECT_EQ(tried.size(), handlers.size()) << "not every control was on the page of some model";
}

#define BUTTON(name) &Page::OnBnClicked##name
#define LIST(name) &Page::OnCbnSelchange##name
#define TEST_HANDLERS(PageClass, tab, ...)       \
  TEST(NamedHandlers, PageClass) {               \
    using Page = PageClass;                      \
    ExpectOwnControls<Page>(tab, {__VA_ARGS__}); \
  }

TEST_HANDLERS(CPictureTabType5Dlg, 1, BUTTON(PicBgnBtn), BUTTON(PicBgpBtn), BUTTON(PicCnnBtn),
              BUTTON(PicCnpBtn), nullptr, nullptr, nullptr, nullptr, BUTTON(PicClrnBtn),
              BUTTON(PicClrpBtn), BUTTON(PicTintnBtn), BUTTON(PicTintpBtn), BUTTON(PicShpnBtn),
              BUTTON(PicShppBtn), LIST(Pic5ActilisCombo), nullptr, BUTTON(PicMyldBtn), nullptr,
              BUTTON(PicRstBtn))

TEST_HANDLERS(CInputType5Dlg, 3, LIST(Input5ProgComb), LIST(Input5VidnrComb), LIST(Input53dycsComb),
              LIST(Input5CospsComb), LIST(Input5CompoComb), LIST(Input5CvidfmtComb),
              LIST(Input5SvidfmtComb), LIST(Input5HdmiComb), LIST(Input5M1dComb),
              LIST(Input5FrlckCombo), LIST(Input5Framelockrgb1Comb), LIST(Input5Framelockcomp1Comb),
              LIST(Input5Framelockrgb2Comb), LIST(Input5Framelockcomp2Comb),
              LIST(Input5FramelockhdmiComb), LIST(Input5Rgbin1Comb), LIST(Input5Computerin1Comb),
              LIST(Input5Rgbin2Comb), LIST(Input5Computerin2Comb))

TEST_HANDLERS(CSetupType5TabDlg, 4, BUTTON(Stu5Btnatks), BUTTON(Stu5Btksvneg), BUTTON(Stu5Btksvpos),
              BUTTON(Stu5Btkshneg), BUTTON(Stu5Btkshpos), LIST(Stu5Wspcomb), LIST(Stu5Mircomb),
              BUTTON(Stu5Btvolneg), BUTTON(Stu5Btvolpos), LIST(Stu5Speakercomb),
              BUTTON(DzoomDecBtn), BUTTON(DzoomIncBtn), BUTTON(DshiftUpBtn), BUTTON(DshiftDownBtn),
              BUTTON(DshiftLeftBtn), BUTTON(DshiftRightBtn), nullptr, BUTTON(Stu5Btreset),
              // The right column.
              LIST(Stu5Argb1comb), LIST(Stu5Acomp1comb), LIST(Stu5Argb2comb), LIST(Stu5Acomp2comb),
              LIST(Stu5Ahdmicomb), LIST(Stu5Avidcomb), LIST(Stu5Asvidcomb), LIST(Stu5Acompcomb),
              LIST(Stu5Amiucomb), LIST(Stu5HdmiaudioComb), nullptr, LIST(CombMonitoroutRgb1),
              LIST(CombMonitoroutComputer1), LIST(CombMonitoroutRgb2),
              LIST(CombMonitoroutComputer2), LIST(CombMonitoroutHdmi),
              LIST(CombMonitoroutComponent), LIST(CombMonitoroutSvideo), LIST(CombMonitoroutVideo),
              LIST(CombMonitoroutMiu), LIST(CombMonitoroutStandby))

TEST_HANDLERS(CAudioType5Dlg, 5, BUTTON(Aud5Btnvolneg), BUTTON(Aud5Btnvolpos),
              BUTTON(Aud5Btntreneg), BUTTON(Aud5Btntrepos), BUTTON(Aud5Btnbasneg),
              BUTTON(Aud5Btnbaspos),
              // Lists.
              LIST(Aud5Srswcomb), LIST(Aud5Spekcomb), LIST(Aud5Argb1comb), LIST(Aud5Acomp1comb),
              LIST(Aud5Argb2comb), LIST(Aud5Acomp2comb), LIST(Aud5Am1dcomb), LIST(Aud5Ahdmicomb),
              LIST(Aud5Avidcomb), LIST(Aud5Asvidcomb), LIST(Aud5Acompcomb), LIST(Aud5Amiucomb),
              LIST(Aud5Aoutstbcomb), LIST(Aud5Hdmiaudiocomb))

TEST_HANDLERS(COption5TabDlg, 6, LIST(Opt5Atseacomb), LIST(Opt5Atkscomb), LIST(Opt5Atoncomb),
              BUTTON(Opt5Btnatoffneg), BUTTON(Opt5Btnatoffpos), LIST(Opt5Mybtn1comb),
              LIST(Opt5Mybtn2comb), nullptr, nullptr, LIST(Oth4CcdisplayComb), LIST(Oth4CcmodeComb),
              LIST(Oth4CcchannelComb))

TEST_HANDLERS(CServiceDlg, 0, LIST(SvcAtadjenbcomb), BUTTON(SvcIrfrontchk), BUTTON(SvcIrrearchk),
              BUTTON(SvcIrtopchk), LIST(SvcIrfreqncomb), LIST(SvcIrfreqhcomb),
              LIST(SvcFocuslockcomb))

}  // namespace
