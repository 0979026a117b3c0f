#pragma once

#include <optional>

#include "AdvancedControlExport.h"
#include "pages/common/CTabPage.h"

class QLineEdit;

/// Installation settings of the newest page set: keystone, digital zoom and shift, whisper, mirror,
/// volume, speaker and their resets on the left; audio routing, monitor out and standby on the
/// right. A refusal mostly goes back to what the projector reports without a word.
class ADVANCED_CONTROL_EXPORT CSetupType5TabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CSetupType5TabDlg(CWnd* parent);

  void InitDisp() override;

  /// Takes the volume's buttons and slider out of use and empties its field, or takes them into
  /// use. Always 0.
  int DisableVolumeCtrl(bool disable);

  // What the user does with each control, by name.
  void OnBnClickedStu5Btnatks() { Act(20305); }
  void OnCbnSelchangeStu5Wspcomb() { Act(20315); }
  void OnCbnSelchangeStu5Mircomb() { Act(20316); }
  void OnCbnSelchangeStu5Speakercomb() { Act(20321); }
  void OnBnClickedDzoomDecBtn() { Act(20331); }
  void OnBnClickedDzoomIncBtn() { Act(20333); }
  void OnBnClickedDshiftUpBtn() { Act(20335); }
  void OnBnClickedDshiftDownBtn() { Act(20336); }
  void OnBnClickedDshiftLeftBtn() { Act(20334); }
  void OnBnClickedDshiftRightBtn() { Act(20350); }
  void OnCbnSelchangeStu5Argb1comb() { Act(20320); }
  void OnCbnSelchangeStu5Acomp1comb() { Act(20369); }
  void OnCbnSelchangeStu5Argb2comb() { Act(20322); }
  void OnCbnSelchangeStu5Acomp2comb() { Act(20370); }
  void OnCbnSelchangeStu5Ahdmicomb() { Act(20329); }
  void OnCbnSelchangeStu5Avidcomb() { Act(20323); }
  void OnCbnSelchangeStu5Asvidcomb() { Act(20324); }
  void OnCbnSelchangeStu5Acompcomb() { Act(20325); }
  void OnCbnSelchangeStu5Amiucomb() { Act(20326); }
  void OnCbnSelchangeStu5HdmiaudioComb() { Act(20330); }
  void OnCbnSelchangeCombMonitoroutRgb1() { Act(20371); }
  void OnCbnSelchangeCombMonitoroutComputer1() { Act(20360); }
  void OnCbnSelchangeCombMonitoroutRgb2() { Act(20372); }
  void OnCbnSelchangeCombMonitoroutComputer2() { Act(20361); }
  void OnCbnSelchangeCombMonitoroutHdmi() { Act(20362); }
  void OnCbnSelchangeCombMonitoroutComponent() { Act(20363); }
  void OnCbnSelchangeCombMonitoroutSvideo() { Act(20364); }
  void OnCbnSelchangeCombMonitoroutVideo() { Act(20365); }
  void OnCbnSelchangeCombMonitoroutMiu() { Act(20366); }
  void OnCbnSelchangeCombMonitoroutStandby() { Act(20367); }

  void OnHScroll(CSliderCtrl& slider);
  void OnBnClickedStu5Btksvneg();
  void OnBnClickedStu5Btksvpos();
  void OnBnClickedStu5Btkshneg();
  void OnBnClickedStu5Btkshpos();
  void OnBnClickedStu5Btvolneg();
  void OnBnClickedStu5Btvolpos();
  void OnBnClickedStu5Btreset();
  void OnCbnSelchangeCombStandbymode();

 protected:
  std::vector<Notification> OwnNotifications() const override;
  void DoDataExchange() override;
  bool OnInitDialog() override;
  void RefreshOwn(const OwnRow& row) override;

 private:
  using Getter = int (CPjtInterface::*)(short* value);
  using Stepper = int (CPjtInterface::*)(short* value);
  using SourceStepper = int (CPjtInterface::*)(int source, short* value);

  void RefreshKeystone(ValueControls& row, const OwnRow& keystone);
  void StepKeystone(ValueControls& row, Getter get, Stepper step);
  void ResetKeystoneV();
  void ResetKeystoneH();
  void ResetDZoom();
  void ResetDShiftV();
  void ResetDShiftH();
  void ShowReset(ValueControls& row, int bias, int result, const Call& read);

  void RefreshVolume();
  void StepVolume(SourceStepper step);
  bool SendVolume(int position);
  std::optional<short> ReadInputSource();

  ValueControls keystoneV_;
  ValueControls keystoneH_;
  ValueControls volume_;
  QLineEdit* inputSource_ = nullptr;
};
