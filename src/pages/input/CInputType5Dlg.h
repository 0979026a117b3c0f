#pragma once

#include "AdvancedControlExport.h"
#include "pages/common/CTabPage.h"

/// Input settings of the newest page set: signal processing, formats and modes of the inputs, one
/// list per row. A choice is sent at once, and not read back before the next refresh.
/// User-interface thread only.
class ADVANCED_CONTROL_EXPORT CInputType5Dlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CInputType5Dlg(CWnd* parent);

  /// Reads every present row. A row that cannot be read is disabled until the next reading.
  void Init();

  /// Position of a device value in the two video-format lists, or −1.
  static int VideoFmtToIdx(short value);

  // Handlers, one for a choice in each list.
  void OnCbnSelchangeInput5ProgComb();
  void OnCbnSelchangeInput5VidnrComb();
  void OnCbnSelchangeInput53dycsComb();
  void OnCbnSelchangeInput5CospsComb();
  void OnCbnSelchangeInput5CompoComb();
  void OnCbnSelchangeInput5CvidfmtComb();
  void OnCbnSelchangeInput5SvidfmtComb();
  void OnCbnSelchangeInput5HdmiComb();
  void OnCbnSelchangeInput5M1dComb();
  void OnCbnSelchangeInput5FrlckCombo();
  void OnCbnSelchangeInput5Framelockrgb1Comb();
  void OnCbnSelchangeInput5Framelockcomp1Comb();
  void OnCbnSelchangeInput5Framelockrgb2Comb();
  void OnCbnSelchangeInput5Framelockcomp2Comb();
  void OnCbnSelchangeInput5FramelockhdmiComb();
  void OnCbnSelchangeInput5Rgbin1Comb();
  void OnCbnSelchangeInput5Computerin1Comb();
  void OnCbnSelchangeInput5Rgbin2Comb();
  void OnCbnSelchangeInput5Computerin2Comb();
};
