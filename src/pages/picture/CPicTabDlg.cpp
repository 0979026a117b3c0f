#include "pages/picture/CPicTabDlg.h"

#include <cstdint>

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"
#include "toolkit/CComboBox.h"

CPicTabDlg::CPicTabDlg(CWnd* parent) : PicturePage(TemplateId::Pic, kPicRows, true, parent) {}

// The lists of these models begin with three gammas that the user can shape, and have such a colour
// temperature in the fourth place only, whatever the entries stand for.
bool CPicTabDlg::IsCustomGamma(const CComboBox& list) const {
  // No selection is a large number.
  return static_cast<std::uint16_t>(list.currentIndex()) <= kLastCustomGammaPosition;
}

bool CPicTabDlg::IsCustomColorTemp(const CComboBox& list) const {
  return list.currentIndex() == kCustomColorTempPosition;
}
