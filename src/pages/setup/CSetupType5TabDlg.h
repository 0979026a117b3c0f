#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "pages/common/CTabPage.h"
#include "pages/common/GenericSliderRow.h"
#include "pages/setup/SetupType5Rows.h"

class CComboBox;
class QAbstractButton;
class QLineEdit;

/// Installation settings of the newest page set: keystone, digital zoom and shift, whisper, mirror,
/// volume, speaker and their resets on the left; audio routing, monitor out and standby on the
/// right. A refusal mostly goes back to what the projector reports without a word.
class CSetupType5TabDlg final : public CTabPage {
  Q_OBJECT

 public:
  explicit CSetupType5TabDlg(CWnd* parent);

  void InitDisp() override;
  const NotificationMap& Notifications() const override;

  /// Takes the volume's buttons and slider out of use and empties its field, or takes them into
  /// use. Always 0.
  int DisableVolumeCtrl(bool disable);

  void OnBnClickedStu5Btnatks();
  void OnBnClickedStu5Btksvneg();
  void OnBnClickedStu5Btksvpos();
  void OnBnClickedStu5Btkshneg();
  void OnBnClickedStu5Btkshpos();
  void OnHScroll(CSliderCtrl& slider);
  void OnCbnSelchangeStu5Wspcomb();
  void OnCbnSelchangeStu5Mircomb();
  void OnBnClickedStu5Btvolneg();
  void OnBnClickedStu5Btvolpos();
  void OnCbnSelchangeStu5Speakercomb();
  void OnBnClickedDzoomDecBtn();
  void OnBnClickedDzoomIncBtn();
  void OnBnClickedDshiftUpBtn();
  void OnBnClickedDshiftDownBtn();
  void OnBnClickedDshiftLeftBtn();
  void OnBnClickedDshiftRightBtn();
  void OnBnClickedStu5Btreset();

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
  void OnCbnSelchangeCombStandbymode();
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

 protected:
  void DoDataExchange() override;
  bool OnInitDialog() override;

 private:
  using Getter = int (CPjtInterface::*)(short* value);
  using Stepper = int (CPjtInterface::*)(short* value);
  using SourceStepper = int (CPjtInterface::*)(int source, short* value);
  using GenericStepper = int (CPjtInterface::*)(unsigned short code, unsigned short argument,
                                                CPjtInterface* self);

  /// One direction of the digital shift.
  struct ShiftAxis {
    std::uint16_t code;
    QAbstractButton* decrement = nullptr;
    QAbstractButton* increment = nullptr;
    QLineEdit* field = nullptr;
    std::int16_t current = 0;  ///< Device value last known.

    void Show(int deviceValue);
  };

  void ShowRows();
  void FillLists();
  void FillResets();

  void RefreshKeystone(SliderRow& row, Getter get);
  void StepKeystone(SliderRow& row, Getter get, Stepper step);
  void ResetKeystone(SliderRow& row, int result, Getter get);
  void ResetKeystoneV();
  void ResetKeystoneH();

  void RefreshVolume();
  void StepVolume(SourceStepper step);
  bool SendVolume(int position);
  std::optional<short> ReadInputSource();

  bool ReadGeneric(std::uint16_t code, std::int16_t& value);
  void RefreshDZoom();
  void TellDZoom(Outcome outcome);
  void ResetDZoom();

  void RefreshShift(ShiftAxis& axis);
  void StepShift(ShiftAxis& axis, GenericStepper step);
  void ResetShift(ShiftAxis& axis, int result);
  void ResetDShiftV();
  void ResetDShiftH();

  CComboBox& List(SetupRow row) const;
  void RefreshList(SetupRow row);
  void ReadBack(SetupRow row);
  void ShowListValue(SetupRow row, int value);
  void Send(SetupRow row);
  void Send(SetupRow row, const std::function<int(int value)>& set);

  SetupRows rows_;
  SliderRow keystoneV_;
  SliderRow keystoneH_;
  SliderRow volume_;
  GenericSliderRow dZoom_;
  ShiftAxis shiftV_;
  ShiftAxis shiftH_;
  QLineEdit* inputSource_ = nullptr;
  CComboBox* reset_ = nullptr;
};
