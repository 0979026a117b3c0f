#pragma once

#include "AdvancedControlExport.h"
#include "pages/common/CTabPage.h"

/// Input settings of the newest page set: signal processing, formats and modes of the inputs, one
/// list a row. A choice is sent at once and never read back before the next refresh.
class ADVANCED_CONTROL_EXPORT CInputType5Dlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CInputType5Dlg(CWnd* parent);

  /// Reads every present row; a row that cannot be read is out of use until the next time.
  void Init() { InitDisp(); }

  /// Position of a device value in the two video-format lists, or −1.
  static int VideoFmtToIdx(short value);

  // A choice in each list, by name.
  void OnCbnSelchangeInput5ProgComb() { Act(20294); }
  void OnCbnSelchangeInput5VidnrComb() { Act(20295); }
  void OnCbnSelchangeInput53dycsComb() { Act(20296); }
  void OnCbnSelchangeInput5CospsComb() { Act(20297); }
  void OnCbnSelchangeInput5CompoComb() { Act(20298); }
  void OnCbnSelchangeInput5CvidfmtComb() { Act(20299); }
  void OnCbnSelchangeInput5SvidfmtComb() { Act(20300); }
  void OnCbnSelchangeInput5HdmiComb() { Act(20307); }
  void OnCbnSelchangeInput5M1dComb() { Act(20301); }
  void OnCbnSelchangeInput5FrlckCombo() { Act(20302); }
  void OnCbnSelchangeInput5Framelockrgb1Comb() { Act(20309); }
  void OnCbnSelchangeInput5Framelockcomp1Comb() { Act(20305); }
  void OnCbnSelchangeInput5Framelockrgb2Comb() { Act(20310); }
  void OnCbnSelchangeInput5Framelockcomp2Comb() { Act(20306); }
  void OnCbnSelchangeInput5FramelockhdmiComb() { Act(20308); }
  void OnCbnSelchangeInput5Rgbin1Comb() { Act(20303); }
  void OnCbnSelchangeInput5Computerin1Comb() { Act(20311); }
  void OnCbnSelchangeInput5Rgbin2Comb() { Act(20304); }
  void OnCbnSelchangeInput5Computerin2Comb() { Act(20312); }
};
