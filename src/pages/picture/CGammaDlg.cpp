#include "pages/picture/CGammaDlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

CGammaDlg::CGammaDlg(bool hidePointResets, CWnd* parent)
    : CustomDialog(TemplateId::Gamma, kGammaRows, 20336, hidePointResets, parent) {}

std::optional<int> CGammaDlg::Reset(std::size_t point) {
  const int number = static_cast<int>(point) + 1;
  if (projector->ExecUserGammaPReset(number) == 0) return {};
  return projector->GetUserGammaPoint(number);
}
