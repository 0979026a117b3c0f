#include "pages/MakePage.h"

#include "pages/TablePages.h"
#include "pages/input/CInputTabDlg.h"
#include "pages/input/CInputType5Dlg.h"
#include "pages/option/COption5TabDlg.h"
#include "pages/other/COtherTabDlg.h"
#include "pages/picture/CPicTabDlg.h"
#include "pages/picture/CPictureTabType5Dlg.h"
#include "pages/setup/CAudioType5Dlg.h"
#include "pages/setup/CSetupType5TabDlg.h"
#include "pages/status/CStatusTabDlg.h"

namespace AdvancedControl {

namespace {

template <class Page>
std::unique_ptr<CTabPage> Make(CWnd* parent) {
  return std::make_unique<Page>(parent);
}

}  // namespace

std::unique_ptr<CTabPage> MakePage(PageId page, CWnd* parent) {
  static constexpr std::unique_ptr<CTabPage> (*kMakers[])(CWnd*) = {
#define PAGE(identifier, number, pageClass) Make<pageClass>,
#include "settings/Pages.def"
  };
  auto made = kMakers[static_cast<std::size_t>(page)](parent);
  made->setWindowFlags(Qt::Widget);
  made->hide();  // otherwise it would be shown together with the dialog
  return made;
}

}  // namespace AdvancedControl
