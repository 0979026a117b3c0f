#include "pages/picture/CPicTabDlg.h"

#include <cstdint>

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"
#include "toolkit/CComboBox.h"

CPicTabDlg::CPicTabDlg(CWnd* parent) : PicturePage(TemplateId::Pic, kPicRows, true, parent) {}

// The lists of these models begin with three gammas that the user can shape, and have such a colour
// temperature in the fourth place only, whatever the entries stand for.
bool CPicTabDlg::IsCustomGamma(const CComboBox& list) const {
  return static_cast<std::uint16_t>(list.currentIndex()) <= 2;  // no selection is a large number
}

bool CPicTabDlg::IsCustomColorTemp(const CComboBox& list) const { return list.currentIndex() == 3; }
