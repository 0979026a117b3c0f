#include "pages/input/CInputType5Dlg.h"

#include "resources/TemplateId.h"
#include "settings/ControlId.h"
#include "settings/PageTables.h"

namespace {

namespace Id = ControlId::InputType5;

}  // namespace

CInputType5Dlg::CInputType5Dlg(CWnd* parent)
    : CTabPage(TemplateId::InputType5, kInputType5Rows, parent) {}

int CInputType5Dlg::VideoFmtToIdx(short value) {
  return PositionOf(std::get<ListRow>(FindRow(kInputType5Rows, Id::CVideoFormat)).entries.Of({}),
                    value);
}

void CInputType5Dlg::Init() { InitDisp(); }
void CInputType5Dlg::OnCbnSelchangeInput5ProgComb() { Act(Id::Progressive); }
void CInputType5Dlg::OnCbnSelchangeInput5VidnrComb() { Act(Id::VideoNr); }
void CInputType5Dlg::OnCbnSelchangeInput53dycsComb() { Act(Id::ThreeDYcs); }
void CInputType5Dlg::OnCbnSelchangeInput5CospsComb() { Act(Id::ColorSpace); }
void CInputType5Dlg::OnCbnSelchangeInput5CompoComb() { Act(Id::Component); }
void CInputType5Dlg::OnCbnSelchangeInput5CvidfmtComb() { Act(Id::CVideoFormat); }
void CInputType5Dlg::OnCbnSelchangeInput5SvidfmtComb() { Act(Id::SVideoFormat); }
void CInputType5Dlg::OnCbnSelchangeInput5HdmiComb() { Act(Id::Hdmi); }
void CInputType5Dlg::OnCbnSelchangeInput5M1dComb() { Act(Id::M1D); }
void CInputType5Dlg::OnCbnSelchangeInput5FrlckCombo() { Act(Id::FrameLock); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockrgb1Comb() { Act(Id::FrameLockRgb1); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockcomp1Comb() { Act(Id::FrameLockComputer1); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockrgb2Comb() { Act(Id::FrameLockRgb2); }
void CInputType5Dlg::OnCbnSelchangeInput5Framelockcomp2Comb() { Act(Id::FrameLockComputer2); }
void CInputType5Dlg::OnCbnSelchangeInput5FramelockhdmiComb() { Act(Id::FrameLockHdmi); }
void CInputType5Dlg::OnCbnSelchangeInput5Rgbin1Comb() { Act(Id::RgbIn1); }
void CInputType5Dlg::OnCbnSelchangeInput5Computerin1Comb() { Act(Id::ComputerIn1); }
void CInputType5Dlg::OnCbnSelchangeInput5Rgbin2Comb() { Act(Id::RgbIn2); }
void CInputType5Dlg::OnCbnSelchangeInput5Computerin2Comb() { Act(Id::ComputerIn2); }
