#include "pages/input/CInputType5Dlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

CInputType5Dlg::CInputType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::InputType5, kInputType5Rows, parent) {}

int CInputType5Dlg::VideoFmtToIdx(short value) {
  return PositionOf(std::get<ListRow>(FindRow(kInputType5Rows, 20299)).entries.Of({}), value);
}
