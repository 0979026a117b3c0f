#include "pages/input/CInputType5Dlg.h"

#include "resources/AdvancedControlResources.h"
#include "settings/PageTables.h"

CInputType5Dlg::CInputType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::InputType5, kInputType5Rows, parent) {}

int CInputType5Dlg::VideoFmtToIdx(short value) {
  return PositionOf(std::get<ListRow>(FindRow(kInputType5Rows, 20299)).entries.Of({}), value);
}

void CInputType5Dlg::Init() { InitDisp(); }
void CInputType5Dlg::OnCbnSelchangeInput5ProgComb() { Act(20294); }
void CInputType5Dlg::OnCbnSelchangeInput5VidnrComb() { Act(20295); }
void CInputType5Dlg::OnCbnSelchangeInput53dycsComb() { Act(20296); }
void CInputType5Dlg::OnCbnSelchangeInput5CospsComb() { Act(20297); }
void CInputType5Dlg::OnCbnSelchangeInput5CompoComb() { Act(20298); }
void CInputType5Dlg::OnCbnSelchangeInput5CvidfmtComb() { Act(20299); }
void CInputType5Dlg::OnCbnSelchangeInput5SvidfmtComb() { Act(20300); }
void CInputType5Dlg::OnCbnSelchangeInput5HdmiComb() { Act(20307); }
void CInputType5Dlg::OnCbnSelchangeInput5M1dComb() { Act(20301); }
void CInputType5Dlg::OnCbnSelchangeInput5FrlckCombo() { Act(20302); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockrgb1Comb() { Act(20309); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockcomp1Comb() { Act(20305); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockrgb2Comb() { Act(20310); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockcomp2Comb() { Act(20306); }
void CInputType5Dlg::OnCbnSelchangeInput5FramelockhdmiComb() { Act(20308); }
void CInputType5Dlg::OnCbnSelchangeInput5Rgbin1Comb() { Act(20303); }
void CInputType5Dlg::OnCbnSelchangeInput5Computerin1Comb() { Act(20311); }
void CInputType5Dlg::OnCbnSelchangeInput5Rgbin2Comb() { Act(20304); }
void CInputType5Dlg::OnCbnSelchangeInput5Computerin2Comb() { Act(20312); }
