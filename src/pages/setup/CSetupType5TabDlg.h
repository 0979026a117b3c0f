#pragma once

#include "AdvancedControlExport.h"
#include "pages/common/CTabPage.h"

/// Installation settings of the newest page set: keystone, digital zoom and shift, whisper, mirror,
/// volume, speaker and their resets on the left; audio routing, monitor out and standby on the
/// right. After most refusals, the row silently shows what the projector reports. User-interface
/// thread only.
class ADVANCED_CONTROL_EXPORT CSetupType5TabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CSetupType5TabDlg(CWnd* parent);

  void InitDisp() override;

  /// Disables the volume's buttons and slider and empties its field, or enables them. Returns 0.
  int DisableVolumeCtrl(bool disable);

  // Handlers, one for each control.
  void OnBnClickedStu5Btnatks();
  void OnBnClickedStu5Btksvneg();
  void OnBnClickedStu5Btksvpos();
  void OnBnClickedStu5Btkshneg();
  void OnBnClickedStu5Btkshpos();
  void OnBnClickedStu5Btvolneg();
  void OnBnClickedStu5Btvolpos();
  void OnBnClickedStu5Btreset();
  void OnCbnSelchangeStu5Wspcomb();
  void OnCbnSelchangeStu5Mircomb();
  void OnCbnSelchangeStu5Speakercomb();
  void OnBnClickedDzoomDecBtn();
  void OnBnClickedDzoomIncBtn();
  void OnBnClickedDshiftUpBtn();
  void OnBnClickedDshiftDownBtn();
  void OnBnClickedDshiftLeftBtn();
  void OnBnClickedDshiftRightBtn();
  void OnCbnSelchangeStu5Argb1comb();
  void OnCbnSelchangeStu5Acomp1comb();
  void OnCbnSelchangeStu5Argb2comb();
  void OnCbnSelchangeStu5Acomp2comb();
  void OnCbnSelchangeStu5Ahdmicomb();
  void OnCbnSelchangeStu5Avidcomb();
  void OnCbnSelchangeStu5Asvidcomb();
  void OnCbnSelchangeStu5Acompcomb();
  void OnCbnSelchangeStu5Amiucomb();
  void OnCbnSelchangeStu5HdmiaudioComb();
  void OnCbnSelchangeCombMonitoroutRgb1();
  void OnCbnSelchangeCombMonitoroutComputer1();
  void OnCbnSelchangeCombMonitoroutRgb2();
  void OnCbnSelchangeCombMonitoroutComputer2();
  void OnCbnSelchangeCombMonitoroutHdmi();
  void OnCbnSelchangeCombMonitoroutComponent();
  void OnCbnSelchangeCombMonitoroutSvideo();
  void OnCbnSelchangeCombMonitoroutVideo();
  void OnCbnSelchangeCombMonitoroutMiu();
  void OnCbnSelchangeCombMonitoroutStandby();

  void OnHScroll(CSliderCtrl& slider);
  void OnCbnSelchangeCombStandbymode();

 protected:
  std::vector<AdvancedControl::Notification> OwnNotifications() const override;
  bool OnInitDialog() override;
  void ShowSource(std::optional<int> source) override;
};
