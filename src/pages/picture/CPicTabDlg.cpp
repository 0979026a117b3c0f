#include "pages/picture/CPicTabDlg.h"

#include <cstdint>

#include "resources/TemplateId.h"
#include "settings/PageTables.h"
#include "settings/picture/PictureRows.h"
#include "toolkit/CComboBox.h"

CPicTabDlg::CPicTabDlg(CWnd* parent) : PicturePage(TemplateId::Pic, kPicRows, true, parent) {}

// On these models the first three gammas and the fourth colour temperature can be customised,
// whatever the entries' values are.
bool CPicTabDlg::IsCustomGamma(const CComboBox& list) const {
  // Without a selection, −1 becomes a large number.
  return static_cast<std::uint16_t>(list.currentIndex()) <= kLastCustomGammaPosition;
}

bool CPicTabDlg::IsCustomColorTemp(const CComboBox& list) const {
  return list.currentIndex() == kCustomColorTempPosition;
}
